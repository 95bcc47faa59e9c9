// SPDX-License-Identifier: MIT
// Filter a list of devices, select some rows, and export them as CSV.
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PTreeWidgetItem>
#include <CorvelGui/ToolTipHelper>

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

using namespace CorvelGui;

/// A device tells more about itself when the mouse rests on it.
class Device : public PTreeWidgetItem
{
public:
    Device(const QString& name, const QString& address, const QString& state)
    {
        setText(0, name);
        setText(1, address);
        setText(2, state);
        if (state == "Recording")
            setGreen(2, false);
        else
            setRed(2, true);
    }

protected:
    QVariant ToolTipRequested() const override
    {
        ToolTipHelper toolTip;
        toolTip.AddRow("Device", text(0));
        toolTip.AddRow("Address", text(1));
        toolTip.AddRow("State", text(2));
        return toolTip.GetToolTip();
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QWidget window;
    window.setWindowTitle("Devices");
    window.resize(500, 300);
    auto* filter = new FilterLineEdit;
    auto* tree = new PTreeWidget;
    auto* exportButton = new QPushButton("Export the selected rows...");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(filter);
    layout->addWidget(tree);
    layout->addWidget(exportButton);

    tree->setHeaderLabels({"Name", "Address", "State"});
    tree->setRootIsDecorated(false);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection); // to choose several rows
    tree->InitCopyMenus(true);
    tree->addTopLevelItems({new Device("Gate", "10.0.0.2", "Recording"),
                            new Device("Car park", "10.0.0.10", "No connection"),
                            new Device("Loading bay", "10.0.0.12", "Recording"),
                            new Device("Roof", "10.0.0.11", "Disk full")});
    tree->resizeAllColumnToContentsWithOffset(20);

    QObject::connect(filter, &FilterLineEdit::filterChanged, tree,
                     [=](const QString& text) { tree->FilterTree(text.toLower()); });
    const auto enable = [=] {
        exportButton->setEnabled(!tree->selectedItems().isEmpty());
    };
    QObject::connect(tree, &QTreeWidget::itemSelectionChanged, exportButton, enable);
    enable();
    QObject::connect(exportButton, &QPushButton::clicked, tree, [=] {
        PCsvDialog dialog(tree);
        dialog.exec();
    });

    window.show();
    return app.exec();
}

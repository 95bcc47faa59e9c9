// SPDX-License-Identifier: MIT
#include "pcsvdialog.h"

#include "base/logging.h"
#include "base/whilealive.h"
#include "base/wholefile.h"
#include "csvbody.h"
#include "frame/toolshellhelper.h"
#include "ui_pcsvdialog.h"

#include <Hueloft/PIconHelper>
#include <Hueloft/PMessageBox>

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QItemSelection>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTextStream>
#include <QTreeWidget>

using Hueloft::PIconHelper;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace CorvelGui {

struct PCsvDialog::Private
{
    Ui::PCsvDialog ui;
    QPointer<QAbstractItemModel> model;
    QItemSelection rows; ///< of that model
    QPointer<QTableWidget> table;
    QPointer<QTreeWidget> tree;
    bool wellFormed = false;
};

PCsvDialog::PCsvDialog(QWidget* parent) : PBaseDialog(parent), d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    d->ui.pushButtonExportToFile->setIcon(PIconHelper::GetOpenIcon_32x32(true));
    for (const QChar delimiter : {u'\t', u';', u','})
        d->ui.comboBoxDelimiter->addItem(QString(), delimiter);
    d->ui.comboBoxDelimiter->setCurrentIndex(1);
    for (const QChar quote : {u'"', u'\''})
        d->ui.comboBoxTextQuote->addItem(QString(), quote);
    retranslate();
    d->ui.listWidgetColumns->setSpacing(2);
    d->ui.lineEditExportToFile->addExtensionToCheck(u"csv"_s);
    d->ui.lineEditExportToFile->setQuietAtFirst(true);
    // The field judges itself when it is shown; until then it holds no name.
    slotFileNameValidate(false);

    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &PCsvDialog::slotAccept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &PCsvDialog::reject);
    connect(d->ui.lineEditExportToFile, &FileNameValidatingLineEdit::signalValidate, this,
            &PCsvDialog::slotFileNameValidate);
    connect(d->ui.pushButtonExportToFile, &QPushButton::clicked, this, &PCsvDialog::slotBrowsed);

    if (auto* table = qobject_cast<QTableWidget*>(parent))
        InitWithTableWidget(table);
    else if (auto* tree = qobject_cast<QTreeWidget*>(parent))
        InitWithTreeWidget(tree);
}

PCsvDialog::~PCsvDialog() = default;

void PCsvDialog::InitWithTableWidget(QTableWidget* table)
{
    d->table = table;
    if (table && !d->model)
        listColumns();
}

void PCsvDialog::InitWithTreeWidget(QTreeWidget* tree)
{
    d->tree = tree;
    if (tree && !d->table && !d->model)
        listColumns();
}

void PCsvDialog::InitWithRows(QAbstractItemModel* model, const QItemSelection& rows)
{
    d->model = model;
    d->rows = rows;
    if (model)
        listColumns();
}

QString PCsvDialog::fileName() const
{
    return d->ui.lineEditExportToFile->text();
}

void PCsvDialog::setFileName(const QString& fileName)
{
    d->ui.lineEditExportToFile->setText(fileName);
}

bool PCsvDialog::isWellFormed() const
{
    return d->wellFormed;
}

void PCsvDialog::setWellFormed(bool on)
{
    d->wellFormed = on;
}

bool PCsvDialog::opensFile() const
{
    return d->ui.checkBoxOpenExcel->isChecked();
}

void PCsvDialog::setOpensFile(bool on)
{
    d->ui.checkBoxOpenExcel->setChecked(on);
}

QChar PCsvDialog::GetDelimiter() const
{
    return d->ui.comboBoxDelimiter->currentData().toChar();
}

QChar PCsvDialog::GetTextQuote() const
{
    return d->ui.comboBoxTextQuote->currentData().toChar();
}

bool PCsvDialog::AddColumnsAtTop() const
{
    return d->ui.checkBoxAddColumns->isChecked();
}

bool PCsvDialog::openFile(const QString& fileName)
{
    return ToolShellHelper::openDocument(fileName);
}

void PCsvDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    PBaseDialog::changeEvent(event);
}

void PCsvDialog::retranslate()
{
    d->ui.retranslateUi(this);
    const auto name = [](QComboBox* box, const QStringList& texts) {
        for (int item = 0; item < texts.size(); ++item)
            box->setItemText(item, texts.at(item));
    };
    name(d->ui.comboBoxDelimiter, {tr("  Tabulation"), tr("; Semicolon"), tr(", Comma")});
    name(d->ui.comboBoxTextQuote,
         {tr("\"...\" Double Quotation Marks"), tr("'...' Single Quotation Marks")});
}

void PCsvDialog::slotAccept()
{
    const QString path = fileName();
    const QString failure = writeWholeFile(path, csv(), QIODevice::Text);
    if (!failure.isEmpty()) {
        PMessageBox::Warning(this, QCoreApplication::applicationName(),
                             tr("Cannot write file %1:\n%2.").arg(path, failure), QMessageBox::Ok,
                             QMessageBox::Ok);
        return;
    }
    // The shell may handle other events meanwhile.
    const auto open = [&] {
        if (opensFile() && !openFile(path))
            qCWarning(dialogsLog, "No program opens %s", qUtf8Printable(path));
    };
    whileAlive(this, open, [this] { accept(); });
}

void PCsvDialog::slotBrowsed()
{
    const QPointer<QFileDialog> chooser =
        new QFileDialog(this, tr("Save file"), QString(),
                        tr("Comma Separated Values (CSV) File (*.csv);; All (*.*)"));
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setDefaultSuffix(u"csv"_s);
    const bool chosen = chooser->exec() == QDialog::Accepted;
    // The list may be deleted meanwhile, and with it this dialog and the chooser.
    if (!chooser)
        return;
    const QStringList files = chooser->selectedFiles();
    delete chooser;
    if (chosen && !files.isEmpty())
        d->ui.lineEditExportToFile->setText(QDir::toNativeSeparators(files.constFirst()));
}

void PCsvDialog::slotFileNameValidate(bool valid)
{
    d->ui.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(valid);
}

int PCsvDialog::GetCheckedColumnCount() const
{
    int count = 0;
    for (int column = 0; column < d->ui.listWidgetColumns->count(); ++column)
        count += isChecked(column);
    return count;
}

bool PCsvDialog::isChecked(int column) const
{
    return d->ui.listWidgetColumns->item(column)->checkState() == Qt::Checked;
}

QAbstractItemView* PCsvDialog::list() const
{
    if (d->table)
        return d->table;
    return d->tree;
}

QAbstractItemModel* PCsvDialog::model() const
{
    if (d->model)
        return d->model;
    return list() ? list()->model() : nullptr;
}

void PCsvDialog::listColumns()
{
    d->ui.listWidgetColumns->clear();
    for (int column = 0; column < model()->columnCount(); ++column) {
        auto* item = new QListWidgetItem(d->ui.listWidgetColumns);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    nameColumns();
    // A list may translate its header when the language changes.
    connect(model(), &QAbstractItemModel::headerDataChanged, this, &PCsvDialog::nameColumns);
}

void PCsvDialog::nameColumns()
{
    for (int column = 0; column < d->ui.listWidgetColumns->count(); ++column)
        d->ui.listWidgetColumns->item(column)->setText(
            model()->headerData(column, Qt::Horizontal).toString());
}

QByteArray PCsvDialog::csv() const
{
    QByteArray body;
    if (!model())
        return body;
    QBitArray columns(d->ui.listWidgetColumns->count());
    for (int column = 0; column < columns.size(); ++column)
        columns.setBit(column, isChecked(column));
    const CsvFormat format{GetDelimiter(), GetTextQuote(),          AddColumnsAtTop(),
                           columns,        GetCheckedColumnCount(), d->wellFormed};
    QTextStream stream(&body);
    writeCsv(stream, *model(), d->model ? d->rows : list()->selectionModel()->selection(), format);
    return body;
}

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
// An options dialog with a page for the look, and one for the language of the library's texts.
#include <CorvelGui/ISettingsPage>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/PLanguage>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/SettingsManager>

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>

#include <functional>

using namespace CorvelGui;

/// A page with one choice, which takes effect on OK.
class ChoicePage : public ISettingsPage
{
public:
    using Use = std::function<void(int)>;
    ChoicePage(const QString& name, const QStringList& choices, const Use& use)
        : m_choices(choices), m_use(use)
    {
        setId(name);
        setDisplayName(name);
        setCategory("client");
        setDisplayCategory("Client");
    }

    QWidget* createWidget(QWidget* parent) override
    {
        m_widget = new QWidget(parent);
        m_combo = new QComboBox;
        m_combo->addItems(m_choices);
        m_combo->setCurrentIndex(m_current);
        auto* form = new QFormLayout(m_widget);
        form->addRow(displayName() + ":", m_combo);
        return m_widget;
    }

    void apply() override
    {
        m_current = m_combo->currentIndex();
        m_use(m_current);
    }

    void finish() override {}

private:
    const QStringList m_choices;
    const Use m_use;
    QComboBox* m_combo = nullptr;
    int m_current = 0;
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    PMainWindow window;
    window.setWindowTitle("Options");
    window.resize(400, 200);
    window.createDarkFusionStyle(true);
    ChoicePage look("Look", {"Dark", "Light"},
                    [&](int index) { window.createDarkFusionStyle(index == 0); });
    ChoicePage language("Language", {"English", "Deutsch"}, [&](int index) {
        PLanguage::useLanguage(&window, index == 0 ? "en" : "de");
    });
    SettingsManager::m_listPages = {&look, &language};

    auto* button = new QPushButton("Options...");
    window.setCentralWidget(button);
    QObject::connect(button, &QPushButton::clicked, &window, [&] {
        OptionsDialog::getSettingsDialog(&window, "client", "Look")->execDialog();
    });

    window.show();
    return app.exec();
}

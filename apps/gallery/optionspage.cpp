// SPDX-License-Identifier: MIT
#include "optionspage.h"

#include <CorvelGui/ISettingsPage>
#include <CorvelGui/OptionPageProvider>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/SettingsBaseWidget>
#include <CorvelGui/SettingsManager>

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <functional>

using CorvelGui::ISettingsPage;
using CorvelGui::OptionsDialog;
using CorvelGui::SettingsManager;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

struct Description
{
    QString category;
    QString displayCategory;
    QString icon;
    QString id;
    QString displayName;
};

class SamplePage : public ISettingsPage
{
public:
    using Fill = void (*)(QFormLayout* form);

    SamplePage(const Description& description, Fill fill) : m_fill(fill)
    {
        setCategory(description.category);
        setDisplayCategory(description.displayCategory);
        setCategoryIcon(description.icon);
        setId(description.id);
        setDisplayName(description.displayName);
    }

    QWidget* createWidget(QWidget* parent) override
    {
        auto* widget = new CorvelGui::SettingsBaseWidget(parent);
        m_fill(new QFormLayout(widget));
        m_widget = widget;
        return widget;
    }

    void apply() override {}
    void finish() override {}

private:
    const Fill m_fill;
};

class UpdatesProvider : public CorvelGui::OptionPageProvider
{
public:
    UpdatesProvider()
    {
        setCategory(u"updates"_s);
        setDisplayCategory(u"Updates"_s);
        m_pages << new SamplePage({u"updates"_s, {}, {}, u"servers"_s, u"Servers"_s},
                                  [](QFormLayout* form) {
                                      form->addRow(u"&Intranet:"_s, new QLineEdit);
                                      form->addRow(u"&Public server:"_s, new QLineEdit);
                                  });
    }
};

void fillLook(QFormLayout* form)
{
    auto* look = new QComboBox;
    look->addItems({u"Dark"_s, u"Light"_s});
    form->addRow(u"&Look:"_s, look);
    form->addRow(new QCheckBox(u"Show &milliseconds"_s));
    form->addRow(new QCheckBox(u"Show the &preview line"_s));
}

void fillTime(QFormLayout* form)
{
    auto* zone = new QComboBox;
    zone->addItems({u"Europe/Brussels"_s, u"UTC"_s});
    form->addRow(u"Time &zone:"_s, zone);
}

void fillPlayback(QFormLayout* form)
{
    auto* group = new QGroupBox(u"Speed"_s);
    auto* inner = new QFormLayout(group);
    inner->addRow(u"&Slowest:"_s, new QSpinBox);
    inner->addRow(u"&Fastest:"_s, new QSpinBox);
    form->addRow(group);
    form->addRow(new QPushButton(u"&Restore defaults"_s));
}

const QString iconFolder = u":/CorvelGui/common/"_s;

OptionsDialog* createDialog(QWidget* parent)
{
    SettingsManager::m_listProvider << new UpdatesProvider;
    return OptionsDialog::getSettingsDialog(parent, u"display"_s, u"look"_s);
}

} // namespace

OptionsPage::OptionsPage(QWidget* parent)
    : QWidget(parent), m_opened(new QLabel), m_searching(new QLabel), m_result(new QLabel)
{
    const Description look{u"display"_s, u"Display"_s, iconFolder + u"fit.png"_s, u"look"_s,
                           u"Look"_s};
    const Description time{u"display"_s, {}, {}, u"time"_s, u"Time"_s};
    const Description playback{u"playback"_s, u"Playback"_s, iconFolder + u"rightarrow.png"_s,
                               u"speed"_s, u"Speed"_s};
    m_pages.push_back(std::make_unique<SamplePage>(look, fillLook));
    m_pages.push_back(std::make_unique<SamplePage>(time, fillTime));
    m_pages.push_back(std::make_unique<SamplePage>(playback, fillPlayback));
    for (const auto& page : m_pages)
        SettingsManager::m_listPages << page.get();

    for (QLabel* picture : {m_opened, m_searching})
        picture->setFrameShape(QFrame::StyledPanel);

    auto* open = new QPushButton(tr("&Open the options dialog"));
    connect(open, &QPushButton::clicked, this, &OptionsPage::run);
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addWidget(m_result, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(new QLabel(tr("As it opens")));
    layout->addWidget(m_opened, 0, Qt::AlignLeft);
    layout->addWidget(new QLabel(tr("Searching for “zone”")));
    layout->addWidget(m_searching, 0, Qt::AlignLeft);
    layout->addStretch();
}

OptionsPage::~OptionsPage() = default;

void OptionsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    takePictures();
}

void OptionsPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange && isVisible())
        QMetaObject::invokeMethod(this, &OptionsPage::takePictures, Qt::QueuedConnection);
}

void OptionsPage::takePictures()
{
    const std::unique_ptr<OptionsDialog> dialog(createDialog(this));
    dialog->resize(700, 320);
    dialog->setAttribute(Qt::WA_DontShowOnScreen);
    dialog->show();
    m_opened->setPixmap(dialog->grab());
    dialog->findChild<QLineEdit*>()->setText(u"zone"_s);
    m_searching->setPixmap(dialog->grab());
}

void OptionsPage::run()
{
    const bool applied = createDialog(this)->execDialog();
    m_result->setText(applied ? tr("Applied") : tr("Left as it was"));
}

} // namespace Gallery

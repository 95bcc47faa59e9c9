// SPDX-License-Identifier: MIT
#include "updatespage.h"

#include <CorvelGui/UrlLineEdit>

#include <QFormLayout>
#include <QLabel>

using CorvelGui::UrlLineEdit;

using namespace Qt::StringLiterals;

namespace Review {

namespace {

// An address with a typing error must not replace one that works.
void takeServer(QString& server, const UrlLineEdit& edit)
{
    const QString text = edit.text().trimmed();
    if (text.isEmpty() || edit.isValid())
        server = text;
}

} // namespace

UpdatesPage::UpdatesPage(SettingsStore& store) : ClientPage(store, u"network"_s, u"updates"_s)
{
    retranslate();
}

void UpdatesPage::build(QFormLayout& form)
{
    m_internal = addServer(form, m_internalLabel);
    m_public = addServer(form, m_publicLabel);
    m_update = addServer(form, m_updateLabel);
    m_news = addServer(form, m_newsLabel);
    m_note = addNote(form);
}

void UpdatesPage::show(const ReviewSettings& settings)
{
    m_internal->setText(settings.servers.internalChannel);
    m_public->setText(settings.servers.publicServer);
    m_update->setText(settings.servers.queryServer);
    m_news->setText(settings.servers.news);
}

void UpdatesPage::take(ReviewSettings& settings) const
{
    takeServer(settings.servers.internalChannel, *m_internal);
    takeServer(settings.servers.publicServer, *m_public);
    for (QString* folder : {&settings.servers.internalChannel, &settings.servers.publicServer}) {
        if (!folder->isEmpty() && !folder->endsWith(u'/'))
            folder->append(u'/');
    }
    takeServer(settings.servers.queryServer, *m_update);
    takeServer(settings.servers.news, *m_news);
}

QString UpdatesPage::pageName() const
{
    return tr("Updates");
}

QString UpdatesPage::categoryName() const
{
    return tr("Network");
}

void UpdatesPage::retranslateFields()
{
    m_internalLabel->setText(tr("&Internal server:"));
    m_publicLabel->setText(tr("&Public server:"));
    m_updateLabel->setText(tr("&Update server:"));
    m_newsLabel->setText(tr("&News feed:"));
    m_note->setText(tr("An empty field stands for no server. What is marked red is not an address "
                       "and will not be taken over."));
}

UrlLineEdit* UpdatesPage::addServer(QFormLayout& form, QLabel*& label)
{
    auto* edit = new UrlLineEdit;
    edit->setMaxLength(2'000);
    // No server is no error.
    const auto judge = [edit] {
        edit->setValidationActive(!edit->text().isEmpty());
    };
    connect(edit, &QLineEdit::textChanged, edit, judge);
    label = addRow(form, edit);
    return edit;
}

} // namespace Review

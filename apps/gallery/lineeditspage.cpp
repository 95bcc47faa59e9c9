// SPDX-License-Identifier: MIT
#include "lineeditspage.h"

#include <CorvelGui/CheckDirLineEdit>
#include <CorvelGui/CheckFileNameLineEdit>
#include <CorvelGui/CountryCodeLineEdit>
#include <CorvelGui/FileNameValidatingLineEdit>
#include <CorvelGui/InputLengthLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PFileCheckLineEdit>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/UrlLineEdit>

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

struct Example
{
    QString title;
    ValidateBaseLineEdit* (*make)();
    QString accepted;
    QString refused;
};

template <typename Field>
ValidateBaseLineEdit* make()
{
    return new Field;
}

ValidateBaseLineEdit* makeInputLength()
{
    auto* field = new InputLengthLineEdit;
    field->setInputLengthRange(3, 8);
    return field;
}

ValidateBaseLineEdit* makeFileName()
{
    auto* field = new FileNameValidatingLineEdit;
    field->addExtensionToCheck(u"csv"_s);
    return field;
}

QString nativeRoot()
{
    return QDir::toNativeSeparators(QDir::rootPath());
}

QString verdict(const ValidateBaseLineEdit* field)
{
    const auto* url = qobject_cast<const UrlLineEdit*>(field);
    if (field->isValid())
        return url ? LineEditsPage::tr("Port %1").arg(url->getPort()) : LineEditsPage::tr("Good");
    const auto* fileName = qobject_cast<const FileNameValidatingLineEdit*>(field);
    const QString reason = fileName ? fileName->getErrorAsStrin() : QString();
    return reason.isEmpty() ? LineEditsPage::tr("Not accepted") : reason;
}

} // namespace

LineEditsPage::LineEditsPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createValidating());
    layout->addWidget(createOthers());
    layout->addStretch();
}

QGroupBox* LineEditsPage::createValidating()
{
    const Example examples[] = {
        {tr("IPv4 address"), make<IpLineEdit>, u"192.168.1.20"_s, u"192.168.001.020"_s},
        {tr("Directory"), make<CheckDirLineEdit>, nativeRoot(), nativeRoot() + u"missing"_s},
        {tr("File or directory"), make<CheckFileNameLineEdit>, nativeRoot(), u"missing.txt"_s},
        {tr("Country code"), make<CountryCodeLineEdit>, u"DE"_s, u"Germany"_s},
        {tr("Three to eight characters"), makeInputLength, u"camera"_s, u"no"_s},
        {tr("Anything"), make<NotEmptyLineEdit>, u"Entrance north"_s, u""_s},
        {tr("Server"), make<UrlLineEdit>, u"rtsp://10.0.0.5/stream"_s, u"mailto:a@example.org"_s},
        {tr("Name of a CSV file"), makeFileName, nativeRoot() + u"report.csv"_s,
         nativeRoot() + u"a+b.csv"_s},
    };

    auto* group = new QGroupBox(tr("Red while the text is unacceptable"));
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(12);
    int row = 0;
    for (const Example& example : examples) {
        grid->addWidget(new QLabel(example.title), row, 0);
        int column = 1;
        for (const QString& text : {example.accepted, example.refused}) {
            ValidateBaseLineEdit* field = example.make();
            field->setAccessibleName(example.title);
            field->setText(text);
            auto* said = new QLabel;
            connect(field, &ValidateBaseLineEdit::signalValidate, said,
                    [said, field] { said->setText(verdict(field)); });
            grid->addWidget(field, row, column++);
            grid->addWidget(said, row, column++);
            m_focused = field;
        }
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto* disabled = new NotEmptyLineEdit;
    disabled->setEnabled(false);
    grid->addWidget(new QLabel(tr("Disabled")), row, 0);
    grid->addWidget(disabled, row, 3);
    auto* off = new NotEmptyLineEdit;
    off->setValidationActive(false);
    grid->addWidget(new QLabel(tr("Switched off")), ++row, 0);
    grid->addWidget(off, row, 3);
    return group;
}

QGroupBox* LineEditsPage::createOthers()
{
    auto* group = new QGroupBox(tr("The older two"));
    auto* form = new QFormLayout(group);
    form->setHorizontalSpacing(12);
    for (const QString& text : {u"10.0.0.1"_s, u"10.0.0."_s}) {
        auto* field = new PIpLineEdit;
        field->setText(text);
        form->addRow(tr("Nothing but an IPv4 address"), field);
    }
    for (const QString& text : {QCoreApplication::applicationFilePath(), u"missing.txt"_s}) {
        auto* field = new PFileCheckLineEdit;
        field->setText(text);
        form->addRow(tr("Regular file"), field);
    }
    return group;
}

void LineEditsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_focused->setFocus(Qt::TabFocusReason);
}

} // namespace Gallery

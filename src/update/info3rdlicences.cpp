// SPDX-License-Identifier: MIT
#include "info3rdlicences.h"

#include "licencetext.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/StringHelper>
#include <Hueloft/PIconHelper>

#include <QClipboard>
#include <QCollator>
#include <QDir>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

struct Info3rdLicences::Private
{
    QList<Component> components{};
    QString current{};

    FilterLineEdit* filter = new FilterLineEdit;
    QListWidget* list = new QListWidget;
    QPlainTextEdit* text = new QPlainTextEdit;
    QPushButton* copy = new QPushButton;
};

Info3rdLicences::Info3rdLicences(QWidget* parent) : PWidget(parent), d(new Private)
{
    d->text->setReadOnly(true);
    // The cursor shows where the focus is.
    d->text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    d->text->setTabChangesFocus(true);
    d->copy->setIcon(Hueloft::PIconHelper::GetCopyIcon_32x32(true));
    d->copy->setAutoDefault(false);

    auto* left = new QWidget;
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins({});
    leftLayout->addWidget(d->filter);
    leftLayout->addWidget(d->list);
    auto* right = new QWidget;
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins({});
    rightLayout->addWidget(d->text);
    rightLayout->addWidget(d->copy, 0, Qt::AlignRight);
    auto* parts = new QSplitter;
    parts->setChildrenCollapsible(false);
    parts->addWidget(left);
    parts->addWidget(right);
    parts->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(parts);

    connect(d->filter, &FilterLineEdit::filterChanged, this, [this](const QString& filter) {
        showRows();
        Q_EMIT filterChanged(filter);
    });
    connect(d->list, &QListWidget::currentRowChanged, this, &Info3rdLicences::showCurrent);
    connect(d->copy, &QPushButton::clicked, this, &Info3rdLicences::copy);
    retranslate();
}

Info3rdLicences::~Info3rdLicences() = default;

void Info3rdLicences::setComponents(const QList<Component>& components)
{
    const QSignalBlocker quiet(d->list);
    const QCollator order = StringHelper::naturalOrder();
    d->components = components;
    std::ranges::stable_sort(d->components, [&order](const Component& one, const Component& two) {
        return order.compare(one.name, two.name) < 0;
    });
    d->list->clear();
    for (const Component& component : std::as_const(d->components))
        d->list->addItem(component.name);
    d->list->setCurrentRow(0);
    showRows();
}

QList<Info3rdLicences::Component> Info3rdLicences::components() const
{
    return d->components;
}

QString Info3rdLicences::filter() const
{
    return d->filter->text();
}

void Info3rdLicences::setFilter(const QString& filter)
{
    d->filter->setText(filter);
}

QString Info3rdLicences::current() const
{
    return d->current;
}

void Info3rdLicences::setCurrent(const QString& name)
{
    for (int row = 0; row < d->list->count(); ++row) {
        if (d->list->item(row)->text() == name && !d->list->item(row)->isHidden())
            return d->list->setCurrentRow(row);
    }
}

QString Info3rdLicences::toPlainText() const
{
    return d->text->toPlainText();
}

void Info3rdLicences::copy()
{
    QGuiApplication::clipboard()->setText(toPlainText());
}

void Info3rdLicences::showRows()
{
    const QString filter = d->filter->text();
    int first = -1;
    for (int row = 0; row < d->list->count(); ++row) {
        const Component& component = d->components[row];
        const bool fits = component.name.contains(filter, Qt::CaseInsensitive) ||
                          component.version.contains(filter, Qt::CaseInsensitive) ||
                          component.licence.contains(filter, Qt::CaseInsensitive);
        d->list->item(row)->setHidden(!fits);
        if (fits && first < 0)
            first = row;
    }
    const QListWidgetItem* chosen = d->list->currentItem();
    if (!chosen || chosen->isHidden()) {
        const QSignalBlocker quiet(d->list);
        d->list->setCurrentRow(first);
    }
    showCurrent();
}

void Info3rdLicences::showCurrent()
{
    const int row = d->list->currentRow();
    const bool isChosen = row >= 0 && !d->list->item(row)->isHidden();
    d->text->setPlainText(isChosen ? textOf(d->components[row]) : QString());
    d->copy->setEnabled(isChosen);
    const QString name = isChosen ? d->components[row].name : QString();
    if (std::exchange(d->current, name) != name)
        Q_EMIT currentChanged(name);
}

QString Info3rdLicences::textOf(const Component& component) const
{
    QStringList parts{(component.name + u' ' + component.version).trimmed()};
    if (!component.licence.isEmpty())
        parts.append(tr("Licence: %1").arg(component.licence));
    if (!component.note.isEmpty())
        parts.append(component.note);
    if (!component.homepage.isEmpty())
        parts.append(component.homepage.toString());
    for (const QString& file : component.textFiles) {
        const QString text = licenceText(file);
        parts.append(
            text.isEmpty()
                ? tr("The text of the licence is missing: %1").arg(QDir::toNativeSeparators(file))
                : text);
    }
    return parts.join(u"\n\n"_s);
}

void Info3rdLicences::retranslate()
{
    d->filter->setAccessibleName(tr("Filter components"));
    d->list->setAccessibleName(tr("Components"));
    d->text->setAccessibleName(tr("Licence"));
    d->copy->setText(tr("&Copy"));
    showCurrent();
}

} // namespace CorvelGui

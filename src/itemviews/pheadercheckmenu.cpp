// SPDX-License-Identifier: MIT
#include "pheadercheckmenu.h"

#include "frame/stringhelper.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QHeaderView>
#include <QPointer>
#include <QSettings>

namespace CorvelGui {

namespace {

constexpr QLatin1StringView hiddenColumnsKey("HiddenColumns");

bool isLastVisible(const QHeaderView& header, int column)
{
    return !header.isSectionHidden(column) && header.count() - header.hiddenSectionCount() == 1;
}

} // namespace

struct PHeaderCheckMenu::Private
{
    QPointer<QHeaderView> header;
};

PHeaderCheckMenu::PHeaderCheckMenu(QHeaderView* header, QWidget* parent)
    : QMenu(parent ? parent : header), d(new Private{header})
{
    connect(this, &QMenu::aboutToShow, this, &PHeaderCheckMenu::fill);
    if (!header)
        return;
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this](QPoint position) { popup(d->header->viewport()->mapToGlobal(position)); });
}

PHeaderCheckMenu::~PHeaderCheckMenu() = default;

void PHeaderCheckMenu::fill()
{
    clear();
    const int columns = d->header ? d->header->count() : 0;
    for (int place = 0; place < columns; ++place) {
        const int column = d->header->logicalIndex(place);
        QAction* action = addAction(StringHelper::plainLabel(columnTitle(column)));
        action->setCheckable(true);
        action->setChecked(!d->header->isSectionHidden(column));
        action->setEnabled(!isLastVisible(*d->header, column));
        connect(action, &QAction::toggled, this,
                [this, column](bool visible) { toggle(column, visible); });
    }
}

QString PHeaderCheckMenu::columnTitle(int column) const
{
    const QString title =
        d->header->model()->headerData(column, d->header->orientation()).toString().simplified();
    return title.isEmpty() ? tr("Column %1").arg(column + 1) : title;
}

void PHeaderCheckMenu::toggle(int column, bool visible)
{
    if (!d->header)
        return;
    setColumnVisible(column, visible);
    Q_EMIT columnToggled(column, visible);
}

void PHeaderCheckMenu::setColumnVisible(int column, bool visible)
{
    if (!d->header || column < 0 || column >= d->header->count())
        return;
    if (visible || !isLastVisible(*d->header, column))
        d->header->setSectionHidden(column, !visible);
}

void PHeaderCheckMenu::writeUserSettings(QSettings& settings) const
{
    if (!d->header)
        return;
    QStringList hidden;
    for (int column = 0; column < d->header->count(); ++column) {
        if (d->header->isSectionHidden(column))
            hidden.append(QString::number(column));
    }
    // One text, because a store cannot tell an empty list from none.
    settings.setValue(hiddenColumnsKey, hidden.join(u','));
}

void PHeaderCheckMenu::readUserSettings(QSettings& settings)
{
    if (!d->header || !settings.contains(hiddenColumnsKey))
        return;
    QList<int> hidden;
    for (const QString& entry : settings.value(hiddenColumnsKey).toString().split(u',')) {
        bool isNumber = false;
        const int column = entry.toInt(&isNumber);
        if (isNumber)
            hidden.append(column);
    }
    for (int column = 0; column < d->header->count(); ++column)
        setColumnVisible(column, true);
    // From the last one, so that it is the first that stays.
    for (int column = d->header->count() - 1; column >= 0; --column) {
        if (hidden.contains(column))
            setColumnVisible(column, false);
    }
}

} // namespace CorvelGui

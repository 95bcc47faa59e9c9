#include "pheadercheckmenu.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QHeaderView>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QLatin1StringView hiddenColumnsKey("HiddenColumns");

bool isLastVisible(const QHeaderView& header, int column)
{
    return !header.isSectionHidden(column) && header.count() - header.hiddenSectionCount() == 1;
}

} // namespace

PHeaderCheckMenu::PHeaderCheckMenu(QHeaderView* header, QWidget* parent)
    : QMenu(parent ? parent : header), m_header(header)
{
    connect(this, &QMenu::aboutToShow, this, &PHeaderCheckMenu::fill);
    if (!header)
        return;
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this](QPoint position) { popup(m_header->viewport()->mapToGlobal(position)); });
}

void PHeaderCheckMenu::fill()
{
    clear();
    const int columns = m_header ? m_header->count() : 0;
    for (int place = 0; place < columns; ++place) {
        const int column = m_header->logicalIndex(place);
        QAction* action = addAction(columnTitle(column).replace(u'&', u"&&"_s));
        action->setCheckable(true);
        action->setChecked(!m_header->isSectionHidden(column));
        action->setEnabled(!isLastVisible(*m_header, column));
        connect(action, &QAction::toggled, this,
                [this, column](bool visible) { toggle(column, visible); });
    }
}

QString PHeaderCheckMenu::columnTitle(int column) const
{
    const QString title =
        m_header->model()->headerData(column, m_header->orientation()).toString().simplified();
    return title.isEmpty() ? tr("Column %1").arg(column + 1) : title;
}

void PHeaderCheckMenu::toggle(int column, bool visible)
{
    if (!m_header)
        return;
    setColumnVisible(column, visible);
    Q_EMIT columnToggled(column, visible);
}

void PHeaderCheckMenu::setColumnVisible(int column, bool visible)
{
    if (!m_header || column < 0 || column >= m_header->count())
        return;
    if (visible || !isLastVisible(*m_header, column))
        m_header->setSectionHidden(column, !visible);
}

void PHeaderCheckMenu::writeUserSettings(QSettings& settings) const
{
    if (!m_header)
        return;
    QStringList hidden;
    for (int column = 0; column < m_header->count(); ++column) {
        if (m_header->isSectionHidden(column))
            hidden.append(QString::number(column));
    }
    // One text, because a store cannot tell an empty list from none.
    settings.setValue(hiddenColumnsKey, hidden.join(u','));
}

void PHeaderCheckMenu::readUserSettings(QSettings& settings)
{
    if (!m_header || !settings.contains(hiddenColumnsKey))
        return;
    QList<int> hidden;
    for (const QString& entry : settings.value(hiddenColumnsKey).toString().split(u',')) {
        bool isNumber = false;
        const int column = entry.toInt(&isNumber);
        if (isNumber)
            hidden.append(column);
    }
    for (int column = 0; column < m_header->count(); ++column)
        setColumnVisible(column, true);
    // From the last one, so that it is the first that stays.
    for (int column = m_header->count() - 1; column >= 0; --column) {
        if (hidden.contains(column))
            setColumnVisible(column, false);
    }
}

} // namespace CorvelGui

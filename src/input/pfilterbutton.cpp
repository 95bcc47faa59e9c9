// SPDX-License-Identifier: MIT
#include "pfilterbutton.h"

#include <Hueloft/VectorIconEngine>

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QSignalBlocker>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QSize funnelSize(16, 16);

/// A menu in which several entries can be checked one after the other.
class CheckMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (!triggerCheckable(actionAt(event->position().toPoint())))
            QMenu::mouseReleaseEvent(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Space || !triggerCheckable(activeAction()))
            QMenu::keyPressEvent(event);
    }

private:
    static bool triggerCheckable(QAction* action)
    {
        const bool applies = action && action->isCheckable() && action->isEnabled();
        if (applies)
            action->trigger();
        return applies;
    }
};

void drawFunnel(QPainter& painter, const QRect& square, QIcon::Mode mode, bool filled)
{
    const QPalette colors = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor color = colors.color(group, QPalette::ButtonText);
    const qreal unit = square.width() / 16.0;
    QPolygonF funnel;
    for (const QPointF point : {QPointF(2, 3), QPointF(14, 3), QPointF(9.5, 8.5), QPointF(9.5, 12),
                                QPointF(6.5, 14), QPointF(6.5, 8.5)})
        funnel << square.topLeft() + point * unit;
    painter.setPen(QPen(color, 1.4 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(filled ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPolygon(funnel);
}

QIcon funnelIcon(bool filled)
{
    return QIcon(new Hueloft::VectorIconEngine(
        [filled](QPainter& painter, const QRect& square, QIcon::Mode mode) {
            drawFunnel(painter, square, mode, filled);
        }));
}

} // namespace

struct PFilterButton::Private
{
    explicit Private(QWidget* button) : menu(new CheckMenu(button)) {}

    QMenu* const menu;
    QAction* all = nullptr;
    QList<QAction*> filters;
    QStringList texts; ///< of the filters
    QStringList checked;
    QString ownName; ///< an accessible name of the client's own stays
};

PFilterButton::PFilterButton(QWidget* parent)
    : QToolButton(parent), d(std::make_unique<Private>(this))
{
    d->all = d->menu->addAction(QString());
    d->menu->addSeparator();
    setMenu(d->menu);
    setPopupMode(InstantPopup);
    setFocusPolicy(Qt::StrongFocus);
    setIconSize(funnelSize);
    connect(d->all, &QAction::triggered, this, &PFilterButton::uncheckFilters);
    retranslate();
}

PFilterButton::~PFilterButton() = default;

void PFilterButton::setFilters(const QList<Filter>& filters)
{
    const QStringList checked = d->checked;
    qDeleteAll(d->filters);
    d->filters.clear();
    d->texts.clear();
    QStringList keys;
    for (const auto& [key, text] : filters) {
        if (keys.contains(key))
            continue;
        keys.append(key);
        QAction* action = d->menu->addAction(QString(text).replace(u"&"_s, u"&&"_s));
        action->setData(key);
        action->setCheckable(true);
        action->setChecked(checked.contains(key));
        connect(action, &QAction::toggled, this, &PFilterButton::takeChecks);
        d->filters.append(action);
        d->texts.append(text);
    }
    takeChecks();
    showChecks();
}

QList<PFilterButton::Filter> PFilterButton::filters() const
{
    QList<Filter> filters;
    for (qsizetype i = 0; i < d->filters.size(); ++i)
        filters.append({d->filters[i]->data().toString(), d->texts[i]});
    return filters;
}

QStringList PFilterButton::checkedFilters() const
{
    return d->checked;
}

void PFilterButton::setCheckedFilters(const QStringList& keys)
{
    for (QAction* action : std::as_const(d->filters)) {
        const QSignalBlocker quiet(action); // one change for all
        action->setChecked(keys.contains(action->data().toString()));
    }
    takeChecks();
}

void PFilterButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QToolButton::changeEvent(event);
}

void PFilterButton::takeChecks()
{
    QStringList checked;
    for (const QAction* action : std::as_const(d->filters)) {
        if (action->isChecked())
            checked.append(action->data().toString());
    }
    if (checked == d->checked)
        return;
    d->checked = checked;
    showChecks();
    Q_EMIT checkedFiltersChanged(checked);
}

void PFilterButton::showChecks()
{
    QStringList texts;
    for (qsizetype i = 0; i < d->filters.size(); ++i) {
        if (d->filters[i]->isChecked())
            texts.append(d->texts[i]);
    }
    d->all->setEnabled(!texts.isEmpty());
    setIcon(funnelIcon(!texts.isEmpty()));
    setText(texts.isEmpty() ? QString() : QString::number(texts.size()));
    setToolButtonStyle(texts.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    const QString description =
        texts.isEmpty() ? tr("Nothing is filtered") : tr("Only: %1").arg(texts.join(u", "_s));
    setToolTip(Qt::convertFromPlainText(description));
    setAccessibleDescription(description);
}

void PFilterButton::retranslate()
{
    d->all->setText(tr("Show all"));
    if (accessibleName().isEmpty() || accessibleName() == d->ownName) {
        d->ownName = tr("Filter");
        setAccessibleName(d->ownName);
    }
    showChecks();
}

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#include "accessiblelanes.h"

#include "timelinelanes.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace CorvelGui {

namespace {

/// One lane. Its number stays; which track it is, the lanes know.
class LaneInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    LaneInterface(TimelineLanes* lanes, int lane) : m_lanes(lanes), m_lane(lane) {}

    bool isValid() const override { return m_lanes && m_lane < m_lanes->laneCount(); }
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_lanes.data());
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? m_lanes->laneName(m_lane) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect lane = m_lanes->laneRect(m_lane);
        return {m_lanes->mapToGlobal(lane.topLeft()), lane.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool current = m_lanes->currentLane() == m_lane;
        state.selectable = true;
        state.selected = current;
        state.focusable = true;
        state.focused = current && m_lanes->hasFocus();
        state.disabled = !m_lanes->isEnabled();
        state.offscreen = !m_lanes->rect().intersects(m_lanes->laneRect(m_lane));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction() && isValid() && m_lanes->isEnabled())
            m_lanes->setCurrentTrack(m_lanes->laneTrack(m_lane));
    }

private:
    const QPointer<TimelineLanes> m_lanes;
    const int m_lane;
};

class LanesInterface : public QAccessibleWidget
{
public:
    explicit LanesInterface(TimelineLanes* lanes) : QAccessibleWidget(lanes, QAccessible::List) {}
    ~LanesInterface() override
    {
        for (const QAccessible::Id id : m_lanes)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return lanes()->laneCount(); }

    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (int(m_lanes.size()) <= index)
            m_lanes.push_back(QAccessible::registerAccessibleInterface(
                new LaneInterface(lanes(), int(m_lanes.size()))));
        return QAccessible::accessibleInterface(m_lanes[std::size_t(index)]);
    }

    int indexOfChild(const QAccessibleInterface* lane) const override
    {
        for (int i = 0; i < int(m_lanes.size()); ++i) {
            if (QAccessible::accessibleInterface(m_lanes[std::size_t(i)]) == lane)
                return i;
        }
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return child(lanes()->laneAt(lanes()->mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface* focusChild() const override
    {
        return lanes()->hasFocus() ? child(lanes()->currentLane()) : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? TimelineLanes::tr("Tracks") : text;
    }

private:
    TimelineLanes* lanes() const { return static_cast<TimelineLanes*>(widget()); }

    mutable std::vector<QAccessible::Id> m_lanes;
};

QAccessibleInterface* createLanesInterface(const QString&, QObject* object)
{
    auto* lanes = qobject_cast<TimelineLanes*>(object);
    return lanes ? new LanesInterface(lanes) : nullptr;
}

} // namespace

void makeLanesAccessible()
{
    QAccessible::installFactory(createLanesInterface); // knows what is installed already
}

} // namespace CorvelGui

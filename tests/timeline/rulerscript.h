// SPDX-License-Identifier: MIT
#pragma once

#include "indicator.h"
#include "loggedruler.h"
#include "rangehandle.h"

#include <QRegularExpression>

#include <map>

/// Sends a mouse event to the widget at a place of the ruler, or to its indicator. Returns false if
/// @p kind is none of the mouse.
inline bool playMouse(LoggedRuler& ruler, const QString& kind, const QString& place)
{

    static const std::map<QString, std::tuple<QEvent::Type, Qt::MouseButton, Qt::MouseButtons>>
        kinds{
            {u"press"_s, {QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton}},
            {u"press-again"_s, {QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton}},
            {u"press-right"_s, {QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton}},
            {u"drag"_s, {QEvent::MouseMove, Qt::NoButton, Qt::LeftButton}},
            {u"hover"_s, {QEvent::MouseMove, Qt::NoButton, Qt::NoButton}},
            {u"enter"_s, {QEvent::Enter, Qt::NoButton, Qt::NoButton}},
            {u"release"_s, {QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton}},
            {u"release-right"_s, {QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton}},
        };
    const qsizetype dash = kind.indexOf(u'-');
    const Qt::KeyboardModifiers held = kind.startsWith(u"shift-")  ? Qt::ShiftModifier
                                       : kind.startsWith(u"ctrl-") ? Qt::ControlModifier
                                                                   : Qt::NoModifier;
    const auto known = kinds.find(held ? kind.sliced(dash + 1) : kind);
    if (known == kinds.end())
        return false;
    const QStringList words = place.split(u' ');
    const QStringList xy = words.back().split(u',');
    // A y of +n is that far below the area of previews.
    const int y = xy.size() < 2 ? 30 : xy[1].toInt() + (xy[1][0] == u'+' ? ruler.height() / 2 : 0);
    const QPoint position(xy[0].toInt(), y);
    QWidget* target = &ruler;
    if (words.front() == u"indicator")
        target = ruler.findChild<CorvelGui::Indicator*>();
    else if (words.front() == u"begin" || words.front() == u"end")
        target = ruler.findChildren<CorvelGui::RangeHandle*>()[words.front() == u"end"];
    else if (words.front() == u"arrow")
        target = ruler.childAt(position);
    const auto& [type, button, buttons] = known->second;
    if (type == QEvent::Enter) {
        enterMouse(*target);
        return true;
    }
    QMouseEvent event(type, target->mapFrom(&ruler, position), ruler.mapToGlobal(position), button,
                      buttons, held);
    QApplication::sendEvent(target, &event);
    return true;
}

/// Plays the steps of a script one after the other while the ruler lives, each a verb and its
/// arguments. Returns what the ruler said.
inline QString play(LoggedRuler* ruler, const QString& script)
{

    using R = LoggedRuler;
    struct Words : QStringList
    {
        /// From Monday, in milliseconds: the word is in seconds, or in hours with an "h" behind it.
        qint64 offset(int word) const
        {
            return at(word).endsWith(u'h') ? qint64(at(word).chopped(1).toDouble() * hour)
                                           : at(word).toInt() * second;
        }
        quint64 time(int word) const { return quint64(monday + offset(word)); }
        double number(int word, double otherwise = 0.5) const
        {
            return word < size() ? at(word).toDouble() : otherwise;
        }
    };
    using W = const Words&;
    using Act = std::function<void(R&, W)>;
    const auto send = [](R& r, QEvent&& event) {
        QApplication::sendEvent(&r, &event);
    };
    const auto verb = [](const QString& name, const Act& act) {
        return std::pair(name, act);
    };
    // What a user, the desktop and the client do.
    static const std::map<QString, Act> verbs{
        verb(u"wheel"_s,
             [](R& r, W w) {
                 QVERIFY(turnWheel(&r, {255, 30}, QPoint(0, int(w.number(1)))));
             }),
        verb(u"key"_s,
             [](R& r, W w) {
                 const QKeyCombination key = QKeySequence(w[1])[0];
                 QTest::keyClick(&r, key.key(), key.keyboardModifiers());
             }),
        verb(u"leave"_s, [](R& r, W) { leaveMouse(r); }),
        verb(u"hide"_s, [](R& r, W) { r.hide(); }),
        verb(u"other-window"_s, [=](R& r, W) { send(r, QEvent(QEvent::WindowDeactivate)); }),
        verb(u"modal-window"_s, [=](R& r, W) { send(r, QEvent(QEvent::WindowBlocked)); }),
        verb(u"popup"_s,
             [=](R& r, W) { send(r, QFocusEvent(QEvent::FocusOut, Qt::PopupFocusReason)); }),
        verb(u"turn"_s, [](R&, W) { QCoreApplication::processEvents(); }),
        verb(u"disable"_s, [](R& r, W) { r.setEnabled(false); }),
        verb(u"block"_s, [](R& r, W) { r.setActive(true, true); }),
        verb(u"deactivate"_s, [](R& r, W) { r.setActive(false, false); }),
        verb(u"results"_s, [](R& r, W) { r.setResultMode(true); }),
        verb(u"previews"_s, [](R& r, W) { r.setPreviewEnabled(true); }),
        verb(u"reports"_s, [](R& r, W) { r.setIndicatorDragEnabled(true); }),
        verb(u"resume"_s, [](R& r, W) { r.resumeFollowing(); }),
        verb(u"limits"_s, [](R& r, W w) { r.setTimeLimits(w.time(1), w.time(2)); }),
        verb(u"empty"_s, [](R& r, W) { r.setTimeLimits(0, 0); }),
        verb(u"level"_s, [](R& r, W w) { r.changeLevel(int(w.number(1)), w.number(2)); }),
        verb(u"in"_s, [](R& r, W w) { r.onZoomerIn(int(w.number(1)), w.number(2)); }),
        verb(u"out"_s, [](R& r, W w) { r.onZoomerOut(int(w.number(1)), 0.5); }),
        verb(u"offset"_s, [](R& r, W w) { r.onTimelineOffsetChanged(w.number(1)); }),
        verb(u"hour"_s, [](R& r, W w) { r.onTimelineOffsetChanged((w.number(1) + 0.5) / 240); }),
        verb(u"view"_s, [](R& r, W w) { r.setView(qint64(w.time(1)), qint64(w.time(2))); }),
        verb(u"center"_s, [](R& r, W w) { r.centerOn(qint64(w.time(1))); }),
        verb(u"search"_s,
             [](R& r, W w) {
                 r.setSearchTimeRange(timeAt(w.offset(1)), timeAt(w.offset(2)), w.size() > 3);
             }),
        verb(u"result"_s,
             [](R& r, W w) {
                 r.setResultTimeRange(timeAt(w.offset(1)), timeAt(w.offset(2)), true, true, true,
                                      true);
             }),
        verb(u"track"_s,
             [](R& r, W w) {
                 r.setTrackDescriptions({{{}, {}, qint64(w.time(1)), qint64(w.time(2)), {}}});
             }),
        verb(u"record"_s,
             [](R& r, W w) {
                 r.setTrackDescriptions({{.recorded = {{qint64(w.time(1)), qint64(w.time(2))}}}});
             }),
        verb(u"select"_s,
             [](R& r, W w) {
                 r.setRangeSelection(w[1] == u"off"     ? R::RangeSelection::NoSelection
                                     : w[1] == u"shift" ? R::RangeSelection::ShiftDrag
                                                        : R::RangeSelection::Drag);
             }),
        verb(u"range"_s,
             [](R& r, W w) {
                 r.setSelectedRange({qint64(w.time(1)), qint64(w.time(2))});
             }),
        verb(u"place"_s, [](R& r, W w) { r.setIndicatorPosition(w.time(1)); }),
        verb(u"line"_s, [](R& r, W w) { r.setPreviewIndicatorPosition(w.time(1)); }),
        verb(u"take-away"_s, [](R& r, W) { r.setIndicatorPosition(0); }),
        verb(u"marker"_s, [](R& r, W w) { r.onAddMarkers({{.time = timeAt(w.offset(1))}}); }),
        // Writes down where the indicator stands.
        verb(u"where"_s, [](R& r, W) {
            r.log << u"at %1"_s.arg((qint64(r.getIndicatorMSecs()) - monday) / second);
        })};
    const QPointer<LoggedRuler> alive(ruler);
    for (const QString& step : script.split(u"; "_s, Qt::SkipEmptyParts)) {
        const Words words{step.split(u' ')};
        if (alive && !playMouse(*ruler, words[0], words.sliced(1).join(u' ')))
            verbs.at(words[0])(*ruler, words);
    }
    return alive ? ruler->takeLog().join(u" | "_s) : QString();
}

/// What is played on a new ruler, and what it says to the second part, save what comes into view.
struct RulerCase
{
    QString setUp, script, log;
};

inline void comparePlay(const RulerCase& expected)
{

    LoggedRuler ruler;
    play(&ruler, expected.setUp);
    const QString name = expected.setUp + u" - "_s + expected.script + u": "_s;
    QString said = play(&ruler, expected.script);
    said.remove(QRegularExpression(u"new [^|]*\\| "_s));
    QCOMPARE(name + said, name + expected.log);
}

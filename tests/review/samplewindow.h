// SPDX-License-Identifier: MIT
#pragma once

#include "data/sampledata.h"
#include "lists/eventtable.h"
#include "look/zonecombo.h"

#include "testsupport.h"
#include "window/reviewwindow.h"

#include <CorvelGui/PRowFilterModel>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/Ruler>
#include <CorvelGui/TarvoDateTimeView>

#include <QAction>

/// The client's window, and what a user sees and presses in it.
struct SampleWindow
{
    explicit SampleWindow(const QString& zone, const Review::ProblemList& problems = {},
                          const Review::ReviewData& data = Review::SampleData::make())
        : window(zone, true)
    {
        window.setReview(data, problems);
        window.resize(1200, 700);
        window.show();
        // Offscreen, the mouse enters a window when it appears.
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("The window does not appear");
    }

    /// The first child of the type that shows the text, whatever letter of it is underlined.
    template <typename Child>
    Child* withText(const QString& text) const
    {
        const auto children = window.findChildren<Child*>();
        const auto found = std::ranges::find(
            children, text, [](const Child* child) { return child->text().remove(u'&'); });
        if (found == children.end())
            qFatal("Nothing shows: %s", qPrintable(text));
        return *found;
    }
    QAction* action(const QString& text) const { return withText<QAction>(text); }
    bool says(const QString& text) const
    {
        return std::ranges::count(window.findChildren<QLabel*>(), text, &QLabel::text) > 0;
    }
    bool showsTime(const QString& text) const
    {
        return window.findChild<CorvelGui::TarvoDateTimeView*>()->shownText() == text;
    }
    void press(const QString& button) const { withText<QPushButton>(button)->click(); }
    void enterZone(const QString& text) const
    {
        auto* zones = window.findChild<Review::ZoneCombo*>();
        zones->setEditText(text);
        QTest::keyClick(zones, Qt::Key_Return);
    }
    qint64 viewSpan() const { return ruler()->view().end - ruler()->view().begin; }
    qint64 viewCentre() const { return (ruler()->view().end + ruler()->view().begin) / 2; }
    CorvelGui::Ruler* ruler() const { return window.findChild<CorvelGui::Ruler*>(); }
    CorvelGui::PTreeWidget* devices() const { return window.findChild<CorvelGui::PTreeWidget*>(); }
    /// The only one of the name.
    QTreeWidgetItem* device(const QString& name) const
    {
        const auto found = devices()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        if (found.size() != 1)
            qFatal("There is no such camera: %s", qPrintable(name));
        return found.first();
    }
    /// With its search and its order at their ends.
    Review::EventTable* events() const
    {
        auto* table = window.findChild<Review::EventTable*>();
        qobject_cast<CorvelGui::PRowFilterModel*>(table->model())->finish();
        return table;
    }
    QString eventText(int row, int column) const
    {
        return events()->model()->index(row, column).data().toString();
    }
    /// What a column of the event table says.
    QStringList shownEvents(int column) const
    {
        QStringList texts;
        for (int row = 0; row < events()->model()->rowCount(); ++row)
            texts.append(eventText(row, column));
        return texts;
    }

    Review::ReviewWindow window;
};

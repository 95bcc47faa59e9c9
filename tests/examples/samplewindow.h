#pragma once

#include "reviewwindow.h"
#include "sampledata.h"

#include <CorvelGui/Ruler>

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QTreeView>

#include <algorithm>

/// The client's window, and what a user sees and presses in it.
struct SampleWindow
{
    explicit SampleWindow(const QString& zone, const Review::ProblemList& problems = {},
                          const Review::ReviewData& data = Review::SampleData::make())
        : window(data, problems, zone, true)
    {
        window.resize(1200, 700);
        window.show();
        // Offscreen, the mouse enters a window when it appears.
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("The window does not appear");
    }

    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window.findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        qFatal("No such action: %s", qPrintable(text));
    }

    bool says(const QString& text) const
    {
        const auto labels = window.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel* label) { return label->text() == text; });
    }

    CorvelGui::Ruler* ruler() const { return window.findChild<CorvelGui::Ruler*>(); }
    QTreeView* table(const QString& accessibleName) const
    {
        for (QTreeView* candidate : window.findChildren<QTreeView*>()) {
            if (candidate->accessibleName() == accessibleName)
                return candidate;
        }
        qFatal("No such table: %s", qPrintable(accessibleName));
    }

    Review::ReviewWindow window;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// All that a user reads or hears in a window, hidden parts included: texts and tool tips of
/// widgets and actions, entries of combo boxes, tabs, headers and cells. Sorted, as windows come in
/// no particular order.
QStringList visibleTexts(const QWidget& window);
/// The same of all windows.
QStringList visibleTexts();

/// The texts that translation files translate, as far as the translation differs.
class SourceTexts
{
public:
    explicit SourceTexts(const QStringList& files);

    /// Those of @p texts that are a source text, whatever stands for its place markers.
    QStringList foundIn(const QStringList& texts) const;

private:
    QStringList m_sources;
};

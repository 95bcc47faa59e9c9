// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QCollator>
#include <QCoreApplication>
#include <QString>

class QFontMetrics;

namespace CorvelGui {

/// What has to be done to texts before a user, a widget or a file system gets them. Numbers and
/// order are those of the default locale, words those of the language. Every function may be called
/// on any thread.
class CORVELGUI_EXPORT StringHelper
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::StringHelper)

public:
    StringHelper() = delete;

    /// @p text with an ellipsis in place of its middle where it is longer than @p longest UTF-16
    /// units: what tells two paths or names apart stands at their ends. What a reader takes for one
    /// character is never split. Empty if @p longest is not positive.
    static QString elidedInMiddle(const QString& text, qsizetype longest);
    /// The same for a place of @p width pixels. The result is one line: any white space in @p text
    /// becomes a blank.
    static QString elidedInMiddle(const QString& text, const QFontMetrics& metrics, int width);

    /// How people order names: digits as numbers ("Camera 2" before "Camera 10"), upper and lower
    /// case alike. To be kept while a list is sorted; it does not follow the default locale.
    static QCollator naturalOrder();
    /// Less than, equal to or greater than 0, as @p one stands before, beside or after @p other in
    /// naturalOrder().
    static int compareNaturally(const QString& one, const QString& other);

    /// A size in the largest binary unit that it fills, with one decimal below 10 where it is not
    /// 0: "640 bytes", "1.5 MiB", "64 GiB". Empty for negative sizes, which are unknown ones.
    static QString size(qint64 bytes);
    /// "1 d 2 h 3 min 4 s" without the parts that are 0; below a minute with milliseconds. A day
    /// has 24 hours. Negative lengths count as 0.
    static QString duration(qint64 msecs);

    /// A name made of any text that file systems of all sorts take and readers take for nothing
    /// else. It is no path, no hidden file and not the name of a device, has neither blanks nor
    /// dots at its ends and no character that is forbidden (they become underscores) or invisible
    /// (they are left out). It is at most @p longest UTF-16 units long, which must be 16 or more,
    /// and at most 240 bytes in UTF-8; the suffix is kept when it is shortened.
    ///
    /// If nothing is left, @p fallback stands in as it is.
    static QString safeFileName(const QString& text, const QString& fallback,
                                qsizetype longest = 120);

    /// For tooltips and whatever else takes for markup what looks like it: shows @p text to the
    /// letter.
    static QString plainToolTip(const QString& text);
    /// For menus, tabs and buttons: shows @p text to the letter, without a mnemonic.
    static QString plainLabel(const QString& text);
};

} // namespace CorvelGui

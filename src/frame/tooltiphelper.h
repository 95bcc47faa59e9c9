// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QSharedDataPointer>
#include <QString>

class QByteArray;
class QDateTime;
class QVariant;

namespace CorvelGui {

/// Builds the rich text of a tooltip: an optional picture on top, then a table of rows with a bold
/// label and a value, lines between them, and rows across both columns.
///
/// Labels and values are plain text: markup in them is shown as it stands, unless an operation says
/// otherwise. A missing value is shown as "-". Use it on the GUI thread only.
///
/// Add the picture first, then the rows, and call GetToolTip() once.
class CORVELGUI_EXPORT ToolTipHelper
{
public:
    ToolTipHelper();
    ToolTipHelper(const ToolTipHelper& other);
    ToolTipHelper& operator=(const ToolTipHelper& other);
    ~ToolTipHelper();

    /// Puts a PNG picture on top, given as base64. What was added before is lost.
    void AddTopImagePng(const QByteArray& base64);
    /// The same for a JPEG picture.
    void AddTopImageJpg(const QByteArray& base64);

    void AddRow(const QString& label, const QString& value);
    /// With @p colorValue the value has the colour, without it the label.
    void AddRow(const QString& label, const QString& value, const QColor& color, bool colorValue);
    /// The time in the short format of the system's locale; "-" for an invalid one.
    void AddRow(const QString& label, const QDateTime& value);
    /// "Yes" or "No".
    void AddRow(const QString& label, const bool& value);
    void AddRow(const QString& label, const int& value);
    /// The number followed directly by @p suffix.
    void AddRow(const QString& label, const int& value, const QString& suffix);
    /// A literal would otherwise be taken for a bool.
    template <typename Character>
    void AddRow(const QString& label, const Character* value) = delete;

    /// A row whose label is not bold. Without @p escape, label and value are markup.
    void AddRowNoBold(const QString& label, const QString& value, bool escape);

    /// A row across both columns.
    void AddRowSpan2(const QString& text, const QColor& color, bool bold);
    void AddRowSpan2(const QString& text);

    /// A null variant is a missing value. A double has six significant digits, a time the short
    /// format of the system's locale; all else is converted by QVariant::toString().
    void AddRowVariant(const QString& label, const QVariant& value);

    /// A row labelled "Firmware", whatever @p label says. The value is the four bytes of
    /// @p version, the most significant first, as in "1.2.3.4".
    void AddRowFirmware(const QString& label, const int& version);

    void AddLine();
    void AddSimpleLine();
    /// @p text is markup.
    void AddLineWithText(const QString& text);

    /// As many black circles as @p text has characters, to stand for a password.
    static QString GetAsteriks(const QString& text);

    /// Ends the table and returns the tooltip. Every call ends it once more.
    QString GetToolTip();

private:
    void addBoldRow(const QString& labelMarkup, const QString& valueMarkup);

    struct Private;
    QSharedDataPointer<Private> d;
};

} // namespace CorvelGui

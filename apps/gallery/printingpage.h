// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace CorvelGui {
class TextCursor;
} // namespace CorvelGui

namespace Gallery {

/// A report, its first pages as they come from the printer, and what can be done with it.
class PrintingPage : public QWidget
{
    Q_OBJECT

public:
    explicit PrintingPage(QWidget* parent = nullptr);

private:
    void showReport(int rows);
    void savePdf();

    CorvelGui::TextCursor* m_report;
    QLabel* m_facts;
    QList<QLabel*> m_pages;
};

} // namespace Gallery

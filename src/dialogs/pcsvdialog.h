// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>
#include <CorvelGui/corvelgui_export.h>

#include <memory>

class QAbstractItemModel;
class QAbstractItemView;
class QItemSelection;
class QTableWidget;
class QTreeWidget;

namespace CorvelGui {

/// Writes the selected cells of a list into a file of comma-separated values. The user chooses the
/// file, the delimiter, the quotes, the columns, whether a line of column names comes first, and
/// whether the file is opened at once in the program that the system has for it. Where nothing is
/// selected the file has the column names at most: see that something is before you run the dialog.
///
/// A file is written whole or not at all: when writing fails, a warning says why, the file is as it
/// was before, and the dialog stays open.
///
/// The dialog does not own the list and notices when it is deleted.
class CORVELGUI_EXPORT PCsvDialog : public PBaseDialog
{
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName)
    Q_PROPERTY(bool wellFormed READ isWellFormed WRITE setWellFormed)
    Q_PROPERTY(bool opensFile READ opensFile WRITE setOpensFile)

public:
    /// Exports from @p parent if it is a table or a tree widget.
    explicit PCsvDialog(QWidget* parent = nullptr);
    ~PCsvDialog() override;

    /// Exports from @p table, and offers its columns. A table goes before a tree.
    void InitWithTableWidget(QTableWidget* table);
    /// Exports from @p tree, and offers its columns, unless there is a table.
    void InitWithTreeWidget(QTreeWidget* tree);

    /// Exports the given rows of @p model, and offers its columns. They go before a table and a
    /// tree, and what is selected does not matter.
    void InitWithRows(QAbstractItemModel* model, const QItemSelection& rows);

    /// What the field for the file says, for a client to propose one; empty at first.
    QString fileName() const;
    void setFileName(const QString& fileName);

    /// Whether every program reads the file alike: quotes inside a text are doubled, and a line has
    /// a value for each chosen column, empty for a cell that is not selected. Off at first: then
    /// texts are written as they are, what is not selected is left out, and where a column is left
    /// out that stands before chosen ones, delimiters are missing at the ends of the lines.
    bool isWellFormed() const;
    void setWellFormed(bool on);

    /// Whether the file is opened at once, as the user says; on at first.
    bool opensFile() const;
    void setOpensFile(bool on);

    /// The chosen delimiter: a tab, a semicolon or a comma.
    QChar GetDelimiter() const;
    /// The chosen quotes: double or single ones.
    QChar GetTextQuote() const;
    /// Whether the column names come first.
    bool AddColumnsAtTop() const;

protected:
    /// Opens what was written, in the program that the system has for it. Returns false if there is
    /// none.
    virtual bool openFile(const QString& fileName);
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotAccept();
    void slotBrowsed();
    void slotFileNameValidate(bool valid);

private:
    int GetCheckedColumnCount() const;
    void retranslate();
    bool isChecked(int column) const;
    QAbstractItemView* list() const;
    /// What is exported; null without a list.
    QAbstractItemModel* model() const;
    void listColumns();
    void nameColumns();
    QByteArray csv() const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

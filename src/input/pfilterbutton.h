// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QList>
#include <QStringList>
#include <QToolButton>

#include <memory>
#include <utility>

namespace CorvelGui {

/// Narrows a list down to some of its kinds: a button with a menu of filters to check, which stays
/// open meanwhile. The button shows how many are checked, and its tool tip which. None stands for
/// all: then nothing is filtered.
///
/// Menu, icon, text, tool tip and accessible description belong to the class. A receiver that wants
/// to remove the button calls deleteLater(): the menu still works on itself after its signals.
class CORVELGUI_EXPORT PFilterButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QStringList checkedFilters READ checkedFilters WRITE setCheckedFilters NOTIFY
                   checkedFiltersChanged)

public:
    /// Key and text.
    using Filter = std::pair<QString, QString>;

    /// Without filters at first.
    explicit PFilterButton(QWidget* parent = nullptr);
    ~PFilterButton() override;

    /// Replaces all filters, in their order; a key that comes again is left out. Those that were
    /// checked stay so.
    void setFilters(const QList<Filter>& filters);
    QList<Filter> filters() const;

    /// The keys, in the order of the filters.
    QStringList checkedFilters() const;
    /// Whether any filter is checked.
    bool isFiltering() const { return !checkedFilters().isEmpty(); }

public Q_SLOTS:
    /// Unknown keys count for nothing.
    void setCheckedFilters(const QStringList& keys);
    void uncheckFilters() { setCheckedFilters({}); }

Q_SIGNALS:
    /// Emitted when others are checked, whoever did it.
    void checkedFiltersChanged(const QStringList& keys);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeChecks();
    void showChecks();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

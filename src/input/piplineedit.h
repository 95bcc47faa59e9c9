// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>

#include <memory>

namespace CorvelGui {

/// A field into which nothing but a dotted IPv4 address can be typed. It is red until the address
/// is complete, from the beginning; hasAcceptableInput() says the same.
class CORVELGUI_EXPORT PIpLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool quietAtFirst READ isQuietAtFirst WRITE setQuietAtFirst)

public:
    explicit PIpLineEdit(QWidget* parent = nullptr);
    ~PIpLineEdit() override;

    /// Whether the field keeps its usual colours until its text changes for the first time: nobody
    /// has made a mistake yet. Off at first. hasAcceptableInput() is the same.
    void setQuietAtFirst(bool quiet);
    bool isQuietAtFirst() const;

private Q_SLOTS:
    void checkEntry(const QString& text);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

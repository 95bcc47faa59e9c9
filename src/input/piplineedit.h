#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>

namespace CorvelGui {

/// A field into which nothing but a dotted IPv4 address can be typed. It is red until the address
/// is complete, from the beginning; hasAcceptableInput() says the same.
class CORVELGUI_EXPORT PIpLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PIpLineEdit(QWidget* parent = nullptr);
    ~PIpLineEdit() override;

private Q_SLOTS:
    void checkEntry(const QString& text);
};

} // namespace CorvelGui

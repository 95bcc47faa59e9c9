// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for the address of a server, with or without a scheme, as Corvel::UrlChecker accepts it.
class CORVELGUI_EXPORT UrlLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit UrlLineEdit(QWidget* parent = nullptr);
    ~UrlLineEdit() override;

    /// Host and port of the text last judged, as Corvel::UrlChecker gave them; empty and 0 when the
    /// text was refused.
    QString getHost();
    int getPort() const;

    void Validate() override;

Q_SIGNALS:
    /// Never emitted by this class.
    void signalHostValidate(bool valid);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

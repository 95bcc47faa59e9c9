#pragma once

#include "validatebaselineedit.h"

#include <QString>

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
    /// Never emitted by this class. Clients connect to it.
    void signalHostValidate(bool valid);

private:
    QString m_host;
    int m_port = 0;
};

} // namespace CorvelGui

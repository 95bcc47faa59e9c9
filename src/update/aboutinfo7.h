// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PWidget>

#include <QIcon>
#include <QUrl>

#include <memory>

namespace CorvelGui {

/// What a program is: its logo, name, version, build, the look that is active, copyright and links.
/// A part of a dialog or of a page. What is empty has no line. The texts can be selected and
/// copied, and the links be reached by keyboard.
class CORVELGUI_EXPORT AboutInfo7 : public PWidget
{
    Q_OBJECT
    /// At first QGuiApplication::applicationDisplayName().
    Q_PROPERTY(QString productName READ productName WRITE setProductName NOTIFY infoChanged)
    /// At first QCoreApplication::applicationVersion().
    Q_PROPERTY(QString version READ version WRITE setVersion NOTIFY infoChanged)
    /// What tells this build from others of the version: a date, a number, a commit. Empty at
    /// first.
    Q_PROPERTY(QString build READ build WRITE setBuild NOTIFY infoChanged)
    /// One or more lines of plain text. Empty at first.
    Q_PROPERTY(QString copyright READ copyright WRITE setCopyright NOTIFY infoChanged)
    /// Shown at 64 x 64. At first QGuiApplication::windowIcon().
    Q_PROPERTY(QIcon logo READ logo WRITE setLogo NOTIFY infoChanged)

public:
    explicit AboutInfo7(QWidget* parent = nullptr);
    ~AboutInfo7() override;

    QString productName() const;
    void setProductName(const QString& name);
    QString version() const;
    void setVersion(const QString& version);
    QString build() const;
    void setBuild(const QString& build);
    QString copyright() const;
    void setCopyright(const QString& copyright);
    QIcon logo() const;
    void setLogo(const QIcon& logo);

    /// Adds a link below the others. It opens in the desktop's browser if @p address is an http or
    /// https one; another address is shown as text. @p text is plain text.
    void addLink(const QString& text, const QUrl& address);
    void clearLinks();

    /// All that is shown, as lines "Label: value" without the links.
    QString toPlainText() const;

Q_SIGNALS:
    /// Emitted when one of the properties has another value than before.
    void infoChanged();

protected:
    void changeEvent(QEvent* event) override;
    void retranslate() override;

private:
    void take(QString& value, const QString& text);
    void showInfo();
    void showLinks();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

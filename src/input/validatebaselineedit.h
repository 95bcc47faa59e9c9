// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>

#include <memory>

namespace CorvelGui {

/// Base of the line edits that judge their own text and turn red while it is unacceptable.
///
/// The text is judged on textChanged(), on textEdited(), whenever the widget is shown, and by
/// setValidationActive(true); so a keystroke judges twice, setText() once, and a new field is
/// neither red nor wrong before it is first shown. The style sheet of the widget belongs to this
/// class.
///
/// A receiver that wants to remove the field calls deleteLater(): QLineEdit still works on itself
/// after its own signals.
class CORVELGUI_EXPORT ValidateBaseLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool valid READ isValid NOTIFY signalValidate STORED false)
    Q_PROPERTY(bool validationActive READ validationActive WRITE setValidationActive)
    Q_PROPERTY(bool quietAtFirst READ isQuietAtFirst WRITE setQuietAtFirst)

public:
    explicit ValidateBaseLineEdit(QWidget* parent = nullptr);
    ~ValidateBaseLineEdit() override;

    /// What the last judgement said; true while validation is not active.
    virtual bool isValid() const;

    /// Judges the text as it stands and says so by setError(). Emits nothing.
    virtual void Validate() = 0;

    /// Switches validation on or off. On judges at once and emits signalValidate(), also when it
    /// was on before. Off makes isValid() true without a signal, and leaves a red field red.
    void setValidationActive(bool active);
    bool validationActive() const;

    /// Whether the field keeps its usual colours until its text changes for the first time: nobody
    /// has made a mistake yet. Off at first. The verdict is the same.
    void setQuietAtFirst(bool quiet);
    bool isQuietAtFirst() const;

Q_SIGNALS:
    /// Emitted after every judgement, whether or not the verdict changed; not while validation is
    /// off, and not by a direct call of Validate().
    void signalValidate(bool valid);

protected:
    /// Stores the verdict; shows it when validation is active.
    void setError(bool error);

private Q_SLOTS:
    void slotChanged();

private:
    void showEvent(QShowEvent* event) override;
    void showVerdict();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

namespace CorvelGui {

/// A field for a text of bounded length. Until a range is set only the empty text is valid.
class CORVELGUI_EXPORT InputLengthLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT
    Q_PROPERTY(int minimumInputLength READ minimumInputLength WRITE setMinimumInputLength)
    Q_PROPERTY(int maximumInputLength READ maximumInputLength WRITE setMaximumInputLength)

public:
    explicit InputLengthLineEdit(QWidget* parent = nullptr);
    ~InputLengthLineEdit() override;

    /// Both bounds are valid lengths, in characters of QString. The text is not judged again before
    /// the next edit or show.
    void setInputLengthRange(int minimum, int maximum);
    /// Both are 0 at first. Each is set alone, so they may stand the wrong way round in between.
    int minimumInputLength() const;
    void setMinimumInputLength(int minimum);
    int maximumInputLength() const;
    void setMaximumInputLength(int maximum);

    void Validate() override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

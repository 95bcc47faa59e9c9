// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>

#include <QString>

#include <memory>

namespace CorvelGui {

/// Asks for one more IPv4 network range, as an address and a subnet mask. OK is there for complete
/// addresses only. Run it modally and read the range once it is accepted.
class CORVELGUI_EXPORT PIpRangeDialog : public PBaseDialog
{
    Q_OBJECT

public:
    explicit PIpRangeDialog(QWidget* parent = nullptr);
    ~PIpRangeDialog() override;

    /// Selects the mask with @p prefixLength, 1 to 30; at first it is 15.
    void setMask(int prefixLength);
    /// The address as it was typed, not reduced to its network part. Empty until the dialog is
    /// accepted.
    QString getIp() const;
    /// The prefix length, 1 to 30. It may be any for any address. 0 until the dialog is accepted.
    int getMask() const;

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void checkEntry(const QString& text);
    void slotAccept();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PLineEditDelegate>

namespace CorvelGui {

/// Edits cells with an IPv4 address in a PIpLineEdit. An incomplete address never reaches the
/// model; a PIpItem takes the new one as its address, so that it sorts by it. A validator set for
/// this delegate is not used.
class CORVELGUI_EXPORT PNetworkItemDelegate : public PLineEditDelegate
{
    Q_OBJECT

public:
    explicit PNetworkItemDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
};

} // namespace CorvelGui

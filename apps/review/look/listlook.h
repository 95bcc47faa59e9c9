// SPDX-License-Identifier: MIT
#pragma once

class QAbstractItemView;
class QHeaderView;
class QLayout;
class QLineEdit;
class QWidget;

namespace Review {

/// How the client's lists look and what they offer.
namespace ListLook {

/// Roomy rows in alternating colours, of which any number can be selected.
void apply(QAbstractItemView* list, QHeaderView* header);
/// Offers the actions that the list has made by then in its context menu, and their keys while the
/// list has the focus.
void offerActions(QAbstractItemView* list);
/// The height of a row with one line of text.
int rowHeight(const QAbstractItemView* list);
/// A filter field in its place above a list, and what else filters beside it.
QLayout* place(QLineEdit* filter, QWidget* beside = nullptr);

} // namespace ListLook

} // namespace Review

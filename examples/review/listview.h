#pragma once

class QAbstractItemModel;
class QTreeView;

namespace Review {

/// A list with columns and roomy rows.
QTreeView* createList(QAbstractItemModel* model);

} // namespace Review

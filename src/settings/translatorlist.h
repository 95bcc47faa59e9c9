#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QHash>
#include <QList>
#include <QPointer>
#include <QTranslator>

namespace CorvelGui {

/// Translators that are deleted with the list, or by cleanUpList().
///
/// A copy holds the same translators, not copies of them: the first list that is cleaned up deletes
/// them, and the other one passes over them at its own end.
class CORVELGUI_EXPORT TranslatorList
{
public:
    TranslatorList();
    TranslatorList(const TranslatorList& other);
    TranslatorList& operator=(const TranslatorList& other);
    virtual ~TranslatorList();

    QList<QTranslator*>& getList();
    /// Deletes every translator and empties the list.
    void cleanUpList();

private:
    using Guards = QHash<QTranslator*, QPointer<QTranslator>>;

    void share(const TranslatorList& other);

    QList<QTranslator*> m_list;
    /// What another list may delete.
    mutable Guards m_shared;
};

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QList>
#include <QTranslator>

#include <memory>

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
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

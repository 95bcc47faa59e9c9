// SPDX-License-Identifier: MIT
#include "translatorlist.h"

#include <QHash>
#include <QPointer>

#include <utility>

namespace CorvelGui {

struct TranslatorList::Private
{
    using Guards = QHash<QTranslator*, QPointer<QTranslator>>;

    QList<QTranslator*> list;
    Guards shared; ///< what another list may delete
};

TranslatorList::TranslatorList() : d(std::make_unique<Private>()) {}

TranslatorList::TranslatorList(const TranslatorList& other) : TranslatorList()
{
    *this = other;
}

TranslatorList& TranslatorList::operator=(const TranslatorList& other)
{
    for (QTranslator* translator : std::as_const(other.d->list)) {
        if (translator && this != &other && !other.d->shared.contains(translator))
            other.d->shared.insert(translator, translator);
    }
    *d = *other.d;
    return *this;
}

TranslatorList::~TranslatorList()
{
    cleanUpList();
}

QList<QTranslator*>& TranslatorList::getList()
{
    return d->list;
}

void TranslatorList::cleanUpList()
{
    const Private::Guards shared = std::exchange(d->shared, {});
    for (QTranslator* translator : std::exchange(d->list, {})) {
        const auto guard = shared.constFind(translator);
        if (guard == shared.cend() || *guard)
            delete translator;
    }
}

} // namespace CorvelGui

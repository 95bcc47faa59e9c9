#include "translatorlist.h"

#include <utility>

namespace CorvelGui {

TranslatorList::TranslatorList() = default;

TranslatorList::TranslatorList(const TranslatorList& other)
{
    share(other);
}

TranslatorList& TranslatorList::operator=(const TranslatorList& other)
{
    if (this != &other)
        share(other);
    return *this;
}

TranslatorList::~TranslatorList()
{
    cleanUpList();
}

QList<QTranslator*>& TranslatorList::getList()
{
    return m_list;
}

void TranslatorList::cleanUpList()
{
    const Guards shared = std::exchange(m_shared, {});
    for (QTranslator* translator : std::exchange(m_list, {})) {
        const auto guard = shared.constFind(translator);
        if (guard == shared.cend() || *guard)
            delete translator;
    }
}

void TranslatorList::share(const TranslatorList& other)
{
    for (QTranslator* translator : other.m_list) {
        if (translator && !other.m_shared.contains(translator))
            other.m_shared.insert(translator, translator);
    }
    m_list = other.m_list;
    m_shared = other.m_shared;
}

} // namespace CorvelGui

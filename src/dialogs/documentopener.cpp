#include "documentopener.h"

namespace CorvelGui {

namespace {

DocumentOpener replacement = nullptr;

} // namespace

DocumentOpener documentOpener()
{
    return replacement ? replacement : &openWithSystem;
}

void setDocumentOpener(DocumentOpener opener)
{
    replacement = opener;
}

} // namespace CorvelGui

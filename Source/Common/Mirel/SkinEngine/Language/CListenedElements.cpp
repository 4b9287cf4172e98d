#include "Mirel/SkinEngine/Language/CListenedElements.h"

#include "Mirel/SkinEngine/Language/IElementListener.h"
#include "Mirel/SkinEngine/Language/LanguageElements.h"

#include <utility>

namespace Mirel::SkinEngine
{

void CListenedElements::Start(const char* name, const Containers::CNamedAttributes& attributes)
{
    const bool told = !IsLanguageElement(name);
    Remember(name, told);
    if (told && listener != nullptr)
    {
        listener->OnElementStart(name, attributes);
    }
}

void CListenedElements::Remember(const char* name, bool told)
{
    if (listener != nullptr)
    {
        open.push_back({name, told});
    }
}

void CListenedElements::End()
{
    const CElement element = std::move(open.back());
    open.pop_back();
    if (element.told && listener != nullptr)
    {
        listener->OnElementEnd(element.name.c_str());
    }
}

void CListenedElements::EndDownTo(std::size_t depth)
{
    while (open.size() > depth)
    {
        End();
    }
}

} // namespace Mirel::SkinEngine

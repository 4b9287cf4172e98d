#pragma once

#include "Mirel/SkinEngine/Language/IElementListener.h"

#include <map>
#include <string>
#include <vector>

namespace SkinCheck
{

/// An element as a handler receives it.
struct SExpandedElement
{
    int depth;
    std::string name;
    std::map<std::string, std::string> attributes;
};

/// Writes down the elements of a parse; of several passes those of the last.
class CElementPrinter : public Mirel::SkinEngine::IElementListener
{
public:
    void OnElementStart(const char* name, const Mirel::Containers::CNamedAttributes& attributes) override
    {
        if (depth == 0)
        {
            elements.clear();
        }
        SExpandedElement& element = elements.emplace_back(SExpandedElement{depth++, name, {}});
        attributes.Visit([&element](const std::string& attribute, const std::string& value)
                         { element.attributes.emplace(attribute, value); });
    }
    void OnElementEnd(const char*) override { --depth; }

    const std::vector<SExpandedElement>& GetElements() const { return elements; }

private:
    int depth = 0;
    std::vector<SExpandedElement> elements;
};

} // namespace SkinCheck

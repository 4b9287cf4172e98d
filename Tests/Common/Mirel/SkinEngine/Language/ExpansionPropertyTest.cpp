// Random trees of templates, repeats and variables, beside a plain recursive expansion of the same trees.

#include "ParserRig.h"

#include <memory>

#include <rapidcheck/gtest.h>

namespace
{

using namespace Tests;

struct CElement
{
    std::string name;
    TextMap attributes;
    std::vector<CElement> children;
};

std::string ToXml(const CElement& element)
{
    std::string xml = "<" + element.name;
    for (const auto& [name, value] : element.attributes)
    {
        xml.append(" ").append(name).append("='").append(value).append("'");
    }
    xml += ">";
    for (const CElement& child : element.children)
    {
        xml += ToXml(child);
    }
    return xml + "</" + element.name + ">";
}

/// Replaces "$name$" by the text it stands for, with the simplest reading of the rule: from the left, each
/// pair of neighbouring "$" is a candidate.
std::string Substitute(const std::string& text, const TextMap& values)
{
    std::string result;
    std::size_t done = 0;
    std::size_t open = text.find('$');
    while (open != std::string::npos)
    {
        const std::size_t close = text.find('$', open + 1);
        if (close == std::string::npos)
        {
            break;
        }
        const auto known = values.find(text.substr(open + 1, close - open - 1));
        if (known != values.end())
        {
            result += open >= done ? text.substr(done, open - done) : "";
            result += known->second;
            done = close + 1;
        }
        open = close;
    }
    return done == 0 ? text : result + text.substr(std::min(done, text.size()));
}

TextMap Substitute(const TextMap& attributes, const TextMap& values)
{
    TextMap result;
    for (const auto& [name, value] : attributes)
    {
        result[name] = Substitute(value, values);
    }
    return result;
}

/// Templates are T0, T1, ...; each uses only those before it.
class CReference
{
public:
    CReference(std::vector<CElement> templates_, TextMap globals_)
        : templates(std::move(templates_)),
          globals(std::move(globals_))
    {
    }

    std::string Expand(const std::vector<CElement>& elements) const
    {
        std::string text;
        for (const CElement& element : elements)
        {
            text += Expand(element);
        }
        return text;
    }

private:
    /// The tree with parameters put in; the hole becomes the content.
    static std::vector<CElement> PutIn(const std::vector<CElement>& elements, const TextMap& parameters,
                                       const std::vector<CElement>& content)
    {
        std::vector<CElement> result;
        for (const CElement& element : elements)
        {
            if (element.name == "TEMPLATE_INNER_CONTENT")
            {
                result.insert(result.end(), content.begin(), content.end());
                continue;
            }
            result.push_back({element.name, Substitute(element.attributes, parameters),
                              PutIn(element.children, parameters, content)});
        }
        return result;
    }

    std::string Expand(const CElement& element) const
    {
        const TextMap attributes = Substitute(element.attributes, globals);
        if (element.name == "REPEAT")
        {
            std::string text;
            for (int i = 0; i < std::stoi(attributes.at("count")); ++i)
            {
                text +=
                    Expand(PutIn(element.children, {{attributes.at("index_name"), std::to_string(i)}}, {}));
            }
            return text;
        }
        if (element.name[0] == 'T')
        {
            const CElement& used = templates[static_cast<std::size_t>(element.name[1] - '0')];
            TextMap parameters = used.attributes;
            for (const auto& [name, value] : attributes)
            {
                parameters[name] = value;
            }
            const bool hasHole = ToXml(used).find("TEMPLATE_INNER_CONTENT") != std::string::npos;
            // The content of the use is put in after the parameters, which are not for it.
            const std::string text = Expand(PutIn(used.children, parameters, element.children));
            return hasHole ? text : text + Expand(element.children);
        }
        return StartTag(element.name, Attributes(attributes)) + Expand(element.children) + "</" +
               element.name + ">";
    }

    std::vector<CElement> templates;
    TextMap globals;
};

int Pick(int end)
{
    return *rc::gen::inRange(0, end);
}

std::string PickText()
{
    static const std::vector<std::string> texts = {"x",     "$p$",  "$q$",   "$g$",    "$i$",
                                                   "a$p$b", "$$p$", "$p$q$", "$none$", "$"};
    return texts[static_cast<std::size_t>(Pick(static_cast<int>(texts.size())))];
}

std::vector<CElement> PickElements(int depth, int templates, bool& holeLeft);

CElement PickElement(int depth, int templates, bool& holeLeft)
{
    CElement element;
    const int kind = Pick(6);
    if (kind == 0 && holeLeft)
    {
        holeLeft = false;
        return {"TEMPLATE_INNER_CONTENT", {}, {}};
    }
    bool noHole = false;
    bool& childHole = kind == 1 ? noHole : holeLeft;
    element.children = depth < 3 ? PickElements(depth + 1, templates, childHole) : std::vector<CElement>();
    if (kind == 1)
    {
        element.name = "REPEAT";
        element.attributes = {{"count", std::to_string(Pick(3))}, {"index_name", Pick(2) == 0 ? "i" : "p"}};
    }
    else if (kind == 2 && templates > 0)
    {
        element.name = "T" + std::to_string(Pick(templates));
        element.attributes = {{"p", PickText()}};
    }
    else
    {
        element.name = Pick(2) == 0 ? "A" : "B";
        element.attributes = {{"x", PickText()}};
    }
    return element;
}

std::vector<CElement> PickElements(int depth, int templates, bool& holeLeft)
{
    std::vector<CElement> elements;
    for (int count = Pick(4); count > 0; --count)
    {
        elements.push_back(PickElement(depth, templates, holeLeft));
    }
    return elements;
}

RC_GTEST_PROP(Expansion, IsThatOfAPlainRecursion, ())
{
    std::vector<CElement> templates;
    for (int i = 0; i < 3; ++i)
    {
        bool holeLeft = Pick(2) == 0;
        CElement made{"TEMPLATE", {{"p", "default"}}, PickElements(0, i, holeLeft)};
        templates.push_back(std::move(made));
    }
    bool noHole = false;
    const std::vector<CElement> body = PickElements(0, 3, noHole);
    const TextMap globals = {{"g", "G"}, {"q", "Q"}};

    std::string xml = "<S>";
    for (std::size_t i = 0; i < templates.size(); ++i)
    {
        CElement named = templates[i];
        named.attributes["id"] = "T" + std::to_string(i);
        xml += ToXml(named);
    }
    for (const CElement& element : body)
    {
        xml += ToXml(element);
    }
    CParserRig rig;
    for (const auto& [name, value] : globals)
    {
        rig.parser.SetVariable(name.c_str(), value.c_str());
    }
    RC_ASSERT(rig.Parse(xml + "</S>"));
    RC_ASSERT(rig.trace.text == "<S>" + CReference(templates, globals).Expand(body) + "</S>");
}

} // namespace

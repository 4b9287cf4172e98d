#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IElementListener.h"
#include "Support/CTemporaryFolder.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace Tests
{

using Mirel::Containers::CNamedAttributes;
using Mirel::CoreUtilities::CMemMessageLog;
using Mirel::SkinEngine::CSkinParser;

using TextMap = std::map<std::string, std::string>;

inline TextMap Sorted(const CNamedAttributes& attributes)
{
    TextMap sorted;
    attributes.Visit([&sorted](const std::string& name, const std::string& value) { sorted[name] = value; });
    return sorted;
}

inline CNamedAttributes Attributes(const TextMap& texts)
{
    CNamedAttributes attributes;
    for (const auto& [name, value] : texts)
    {
        attributes.Assign(name, value);
    }
    return attributes;
}

/// An element as text: <NAME a='1' b='2'>.
inline std::string StartTag(const std::string& name, const CNamedAttributes& attributes)
{
    std::string tag = "<" + name;
    for (const auto& [key, value] : Sorted(attributes))
    {
        tag.append(" ").append(key).append("='").append(value).append("'");
    }
    return tag + ">";
}

/// Writes down the elements that handlers would receive.
class CElementTrace : public Mirel::SkinEngine::IElementListener
{
public:
    void OnElementStart(const char* name, const CNamedAttributes& attributes) override
    {
        text += StartTag(name, attributes);
    }
    void OnElementEnd(const char* name) override { text.append("</").append(name).append(">"); }

    std::string text;
};

class CFunctionStart : public CSkinParser::CStartCommand
{
public:
    using Function = std::function<bool(const CNamedAttributes&)>;
    explicit CFunctionStart(Function function_) : function(std::move(function_)) {}
    bool Execute(const CNamedAttributes& attributes) override { return function(attributes); }

private:
    Function function;
};

class CFunctionEnd : public CSkinParser::CEndCommand
{
public:
    explicit CFunctionEnd(std::function<bool()> function_) : function(std::move(function_)) {}
    bool Execute() override { return function(); }

private:
    std::function<bool()> function;
};

/// A parser in a folder of its own. Elements without a handler are listened to; the lines about unknown tags
/// are left out of GetMessages.
class CParserRig
{
public:
    CParserRig() { parser.SetElementListener(&trace); }

    /// Parses the text as a file of the folder.
    bool Parse(const std::string& xml, const std::string& name = "skin.xml")
    {
        folder.Write(name, xml);
        return ParseExisting(name);
    }

    bool ParseExisting(const std::string& name)
    {
        log.Clear();
        trace.text.clear();
        return parser.ParseFile(folder.GetPath(name).c_str());
    }

    void OnStart(const char* name, CFunctionStart::Function function)
    {
        parser.RegisterStartHandler(name, new CFunctionStart(std::move(function)));
    }

    void OnEnd(const char* name, std::function<bool()> function)
    {
        parser.RegisterEndHandler(name, new CFunctionEnd(std::move(function)));
    }

    /// "LEVEL text" of each.
    std::vector<std::string> GetAllMessages() const
    {
        std::vector<std::string> texts;
        for (const auto& message : log.GetMessages())
        {
            texts.push_back(std::to_string(message.kind) + " " + message.text);
        }
        return texts;
    }

    std::vector<std::string> GetMessages() const
    {
        std::vector<std::string> texts = GetAllMessages();
        std::erase_if(texts, [](const std::string& text) { return text.starts_with("2 Skipping '"); });
        return texts;
    }

    CTemporaryFolder folder;
    CMemMessageLog log;
    CElementTrace trace;
    CSkinParser parser{log};
};

using Messages = std::vector<std::string>;

/// What the elements become, without any message but for unknown tags.
inline std::string Expand(const std::string& xml)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse(xml)) << xml;
    EXPECT_EQ(rig.GetMessages(), Messages());
    return rig.trace.text;
}

} // namespace Tests

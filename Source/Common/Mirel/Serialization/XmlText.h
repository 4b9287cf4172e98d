#pragma once

#include <string>
#include <string_view>

class TiXmlElement;
class TiXmlNode;

namespace Mirel::Serialization
{

/// Gives the element the text, as nodes that the library writes so that it reads the same text back:
/// - it passes "&#x" through without escaping it, so the text is split after each such "&";
/// - it drops a text of nothing but white space (or byte order marks), so such a text becomes a CDATA
/// section;
///   with a carriage return in it, which CDATA does not keep, the result is false;
/// - it takes bytes for UTF-8, so the result is false for what is not.
/// False also for what is beyond CLimits. The element is then as before.
bool AppendXmlText(TiXmlElement& element, std::string_view text);

/// The text that the element begins with: its first child if that is a text, with the texts that follow it.
/// Null if there is none or it is empty. Points into the element or into joined, which is used as needed.
const char* GetXmlText(const TiXmlElement& element, std::string& joined);

/// Whether an attribute keeps the text: it cannot be split, so one with "&#x" in it is not kept.
bool IsXmlAttributeText(std::string_view text);

/// Splits the parsed texts below the node as AppendXmlText does, so that the library writes them as they were
/// read.
void SplitXmlTexts(TiXmlNode& root);

/// Whether the library would write an attribute below the node in another form than it was read.
bool HasLostAttribute(const TiXmlNode& root);

} // namespace Mirel::Serialization

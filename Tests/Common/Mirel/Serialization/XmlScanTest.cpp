#include "Mirel/Serialization/XmlScan.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

TEST(XmlScan, AcceptsWellFormedDocuments)
{
    for (const char* text : {
             "<a/>",
             "<a></a>",
             "<a ></a >",
             " \n<a/>\n",
             "\xEF\xBB\xBF<a/>",
             "<?xml version=\"1.0\" encoding='utf-8' standalone=\"yes\" ?><a/>",
             "<?xml version=\"1.0\"?><!-- x --><a><!-- <b> --></a><!-- y -->",
             "<a><b/><b></b>text<b><c/></b></a>",
             "<a k='v' l=\"w>x\" m = 'it&apos;s'/>",
             "<a><![CDATA[ </a> ]]></a>",
             "<a>&amp;&#65;&#x41;&#x0000041;&#x10FFFF;</a>",
             "<a>a & b &unknown; &</a>",
             "<a k='<'/>",
             "<!DOCTYPE a><a/>",
             "<!DOCTYPE a SYSTEM \"a.dtd\"><a/>",
             "<?style x?><a><?y?></a>",
             "<a-b.c_1:d/>",
             "<\xC3\xA9/>",
         })
    {
        EXPECT_TRUE(IsReadableXml(text)) << text;
    }
}

TEST(XmlScan, RefusesWhatIsNotWellFormed)
{
    for (const char* text : {
             "",
             " ",
             "text",
             "<a>",
             "<a><b></a>",
             "<a></b>",
             "<a></A>",
             "</a>",
             "<a/></a>",
             "<a/>junk",
             "junk<a/>",
             "<a/><b/>",
             "<a/><a/>",
             "<a></a><![CDATA[x]]>",
             "<![CDATA[x]]><a/>",
             "<a k=v/>",
             "<a k/>",
             "<a k='v/>",
             "<a k='v\"/>",
             "<a k='v'l='w'/>",
             "<a 1='v'/>",
             "<1/>",
             "<:a/>",
             "< a/>",
             "<a/ >",
             "<a",
             "<",
             "<a><",
             "<a></",
             "<a></a",
             "<!-- x",
             "<a><!-- x</a>",
             "<a><![CDATA[ x</a>",
             "<?xml",
             "<?xml version=1.0?><a/>",
             "<?xml version=\"1.0?><a/>",
             "<?xml version=\"1.0\" x ?><a/>",
             "<?XML x?><a/>",
             "<?x > ?><a/>",
             "<?\?><a/>",
             "<!DOCTYPE a [<!ENTITY b 'c'>]><a/>",
             "<a/><!DOCTYPE a>",
             "<!ELEMENT a><a/>",
             "<a>&#;</a>",
             "<a>&#x;</a>",
             "<a>&#0;</a>",
             "<a>&#xD800;</a>",
             "<a>&#x110000;</a>",
             "<a>&#x41</a>",
             "<a>&#X41;</a>",
             "<a>&#4A;</a>",
             "<a>&#99999999999;</a>",
             "<a k='&#x0;'/>",
             "<a>\xE2\x82</a>",
             "<a>\xFF</a>",
             "<a\f/>",
             "<\xEF\xBB\xBF/>",
             "<a \xEF\xBF\xBFk='v'/>",
         })
    {
        EXPECT_FALSE(IsReadableXml(text)) << text;
    }
    EXPECT_FALSE(IsReadableXml(std::string("<a>\0</a>", 8)));
}

TEST(XmlScan, KnowsNames)
{
    for (const char* name :
         {"a", "_", "Item0", "a-b", "a.b", "a:b", "a\xEF\xBB\xBF", "\xC3\xA9", "x\xE2\x82\xAC"})
    {
        EXPECT_TRUE(IsXmlName(name)) << name;
    }
    for (const char* name : {"", "0", "-a", ":a", ".a", "a b", " a", "a/b", "a=b", "a<", "a\x7F",
                             "\xEF\xBB\xBF", "\xEF\xBF\xBE_a", "\xEF\xBF\xBF", "\xC3", "a\n"})
    {
        EXPECT_FALSE(IsXmlName(name)) << name;
    }
}

} // namespace
} // namespace Mirel::Serialization

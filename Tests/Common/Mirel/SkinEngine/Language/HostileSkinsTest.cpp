// Skins that mean harm, or are broken in ways that look like it: each ends in a clear message within a second
// of processor time, 256 MB and a small stack.

#include "Mirel/SkinEngine/Limits.h"
#include "ParserRig.h"
#include "Support/SmallStack.h"
#include "Support/ThreadTime.h"

#include <filesystem>
#include <fstream>
#include <memory>

#include <arpa/inet.h>
#include <malloc.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

/// Bytes that this process has allocated.
std::size_t AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// The most memory that the process ever used, in bytes.
std::size_t PeakBytes()
{
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// True where a sanitizer makes every frame several times as large.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// The stack of the smallest thread that a host may load a skin on.
constexpr std::size_t smallStackBytes = (isSanitized ? std::size_t{2048} : std::size_t{256}) << 10U;

class HostileSkins : public ::testing::Test
{
protected:
    /// Parses on a small stack and checks what it cost.
    bool Parse(const std::string& xml)
    {
        rig.folder.Write("skin.xml", xml);
        return ParseExisting();
    }

    bool ParseExisting()
    {
        bool result = false;
        double seconds = 0;
        const std::size_t peakBefore = PeakBytes();
        // A sanitizer makes the same work several times as long and as large.
        const double mostSeconds = isSanitized ? 20.0 : 1.0;
        // Others at work on the machine can make one parse slow, but hardly each of three.
        for (int attempt = 0; attempt == 0 || (attempt < 3 && seconds >= mostSeconds); ++attempt)
        {
            stackBytes = RunOnStack(smallStackBytes,
                                    [&]
                                    {
                                        const double begin = ThreadSeconds();
                                        result = rig.ParseExisting("skin.xml");
                                        seconds = ThreadSeconds() - begin;
                                    });
        }
        EXPECT_LT(seconds, mostSeconds);
        EXPECT_LT(PeakBytes() - peakBefore, (isSanitized ? std::size_t{2048} : std::size_t{256}) << 20U);
        if (std::getenv("HOSTILE_FIGURES") != nullptr)
        {
            std::printf("%.3f s, stack %zu KB, peak +%zu MB, kept %zu MB\n", seconds, stackBytes >> 10U,
                        (PeakBytes() - peakBefore) >> 20U, AllocatedBytes() >> 20U);
        }
        return result;
    }

    void ExpectMessage(const std::string& part)
    {
        bool found = false;
        for (const std::string& message : rig.GetMessages())
        {
            found = found || message.find(part) != std::string::npos;
        }
        EXPECT_TRUE(found) << part << "\n" << ::testing::PrintToString(LastMessages());
    }

    /// A few, none of them long.
    Messages LastMessages() const
    {
        Messages messages = rig.GetMessages();
        constexpr std::size_t few = 5;
        constexpr std::size_t shortText = 200;
        messages.erase(messages.begin(), messages.end() - static_cast<std::ptrdiff_t>(
                                                              std::min<std::size_t>(messages.size(), few)));
        for (std::string& message : messages)
        {
            message.resize(std::min(message.size(), shortText));
        }
        return messages;
    }

    CParserRig rig;
    std::size_t stackBytes = 0; ///< Of the last parse.
};

constexpr const char* tooMuch = "0 Parsing stopped, line 1: templates, repeats and variables make more than "
                                "167772160 bytes of elements (skin.xml)";

TEST_F(HostileSkins, ExternalEntitiesAreNotRead)
{
    rig.folder.Write("secret.txt", "<SECRET/>");
    for (const std::string target : {"secret.txt", "file:///etc/passwd"})
    {
        EXPECT_FALSE(Parse("<!DOCTYPE S [<!ENTITY e SYSTEM \"" + target + "\">]><S>&e;</S>"));
        ASSERT_EQ(rig.GetMessages().size(), 1U);
        EXPECT_TRUE(rig.GetMessages()[0].starts_with("0 Fatal error line 1: external entity '"));
        EXPECT_TRUE(rig.GetMessages()[0].ends_with(target + "' is not read (skin.xml)"))
            << rig.GetMessages()[0];
        EXPECT_EQ(rig.trace.text, "<S></S>");
    }
}

TEST_F(HostileSkins, ExternalEntitiesInAttributesAndDeclarationsAreNotRead)
{
    rig.folder.Write("secret.txt", "secret");
    rig.folder.Write("more.dtd", "<!ENTITY e 'secret'>");
    EXPECT_FALSE(Parse("<!DOCTYPE S [<!ENTITY e SYSTEM 'secret.txt'>]><S x='&e;'/>"));
    EXPECT_EQ(rig.trace.text, "");
    EXPECT_FALSE(Parse("<!DOCTYPE S [<!ENTITY % p SYSTEM 'more.dtd'> %p;]><S x='&e;'/>"));
    EXPECT_EQ(rig.trace.text, "");
    EXPECT_FALSE(rig.GetMessages().empty());
    Parse("<!DOCTYPE S SYSTEM 'more.dtd'><S x='&e;'/>");
    EXPECT_EQ(rig.trace.text.find("secret"), std::string::npos);
    EXPECT_TRUE(Parse("<!DOCTYPE S SYSTEM 'none.dtd'><S/>"));
}

/// A port that nobody may come to.
class CWatchedPort
{
public:
    CWatchedPort() : listener(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        ::bind(listener, reinterpret_cast<sockaddr*>(&address), length);
        ::listen(listener, 1);
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
        url = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/x";
    }
    CWatchedPort(const CWatchedPort&) = delete;
    CWatchedPort& operator=(const CWatchedPort&) = delete;
    ~CWatchedPort() { ::close(listener); }

    bool WasCalled() const
    {
        pollfd watched = {listener, POLLIN, 0};
        return ::poll(&watched, 1, 0) > 0;
    }

    std::string url;

private:
    int listener;
};

TEST_F(HostileSkins, NothingIsFetchedFromTheNetwork)
{
    const CWatchedPort port;
    const std::vector<std::string> skins = {
        "<!DOCTYPE S SYSTEM '" + port.url + "'><S/>",
        "<!DOCTYPE S PUBLIC 'p' '" + port.url + "'><S/>",
        "<!DOCTYPE S [<!ENTITY e SYSTEM '" + port.url + "'>]><S>&e;</S>",
        "<!DOCTYPE S [<!ENTITY % p SYSTEM '" + port.url + "'> %p;]><S/>",
        "<S xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:noNamespaceSchemaLocation='" +
            port.url + "'/>",
        "<S xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:schemaLocation='u " + port.url + "'/>",
        "<?xml-stylesheet href='" + port.url + "'?><S/>",
        "<S xmlns:xi='http://www.w3.org/2001/XInclude'><xi:include href='" + port.url + "'/></S>",
        "<S><INCLUDE file='" + port.url + "'/></S>",
    };
    for (const std::string& skin : skins)
    {
        Parse(skin);
        EXPECT_FALSE(port.WasCalled()) << skin;
    }
    // What is not asked for is no failure.
    EXPECT_TRUE(Parse(skins[0]));
    EXPECT_TRUE(Parse(skins[4]));
    EXPECT_EQ(rig.GetMessages(), Messages());
}

TEST_F(HostileSkins, SchemasAreNotRead)
{
    rig.folder.Write("s.xsd", "not a schema");
    EXPECT_TRUE(Parse(
        "<S xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:noNamespaceSchemaLocation='s.xsd'/>"));
    EXPECT_EQ(rig.GetMessages(), Messages());
}

/// Ten entities, each of ten of the one before.
std::string Laughs()
{
    std::string declarations = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 10; ++i)
    {
        declarations += "<!ENTITY a" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
        {
            declarations += "&a" + std::to_string(i - 1) + ";";
        }
        declarations += "'>";
    }
    return "<!DOCTYPE S [" + declarations + "]>";
}

TEST_F(HostileSkins, EntitiesInTextAreBounded)
{
    EXPECT_FALSE(Parse(Laughs() + "<S>&a9;</S>"));
    ExpectMessage("Fatal error line 1: ");
}

TEST_F(HostileSkins, EntitiesInAttributesAreBounded)
{
    EXPECT_FALSE(Parse(Laughs() + "<S x='&a9;'/>"));
    ExpectMessage("Fatal error line 1: ");
    EXPECT_EQ(rig.trace.text, "");
}

TEST_F(HostileSkins, LongEntityMakesNoLongAttributes)
{
    const std::string text(CLimits::maxDocumentTypeBytes - 100, 'x');
    std::string references;
    for (int i = 0; i < 990; ++i)
    {
        references += "&e;";
    }
    EXPECT_FALSE(Parse("<!DOCTYPE S [<!ENTITY e '" + text + "'>]><S x='" + references + "'/>"));
    ExpectMessage("0 Fatal error line 1: an attribute longer than 1048576 bytes (skin.xml)");
}

TEST_F(HostileSkins, HonestEntitiesAndDefaultsWork)
{
    EXPECT_TRUE(Parse("<!DOCTYPE S [<!ENTITY e 'text'><!ATTLIST A y CDATA 'd'>]><S><A x='&e;&amp;'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><A x='text&' y='d'></A></S>");
}

TEST_F(HostileSkins, DefaultAttributesAreBounded)
{
    std::string many;
    for (int i = 0; i < 600; ++i)
    {
        many += " a" + std::to_string(i) + " CDATA 'x'";
    }
    std::string skin = "<!DOCTYPE S [<!ATTLIST A" + many + ">]><S>";
    for (int i = 0; i < 300000; ++i)
    {
        skin += "<A/>";
    }
    EXPECT_FALSE(Parse(skin + "</S>"));
    ExpectMessage("Parsing stopped, line 1: ");
}

TEST_F(HostileSkins, LongDocumentTypeIsRefused)
{
    EXPECT_FALSE(
        Parse("<!DOCTYPE S [<!ENTITY e '" + std::string(CLimits::maxDocumentTypeBytes, 'x') + "'>]><S/>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Fatal error line 1: document type longer than 16384 bytes (skin.xml)"});
}

TEST_F(HostileSkins, DeepNestingIsRefused)
{
    std::string deep = "<S>\n";
    for (int i = 0; i < 100000; ++i)
    {
        deep += "<A>";
    }
    EXPECT_FALSE(Parse(deep));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Fatal error line 2: elements nested deeper than 256 (skin.xml)"});
}

TEST_F(HostileSkins, DeepNestingInEntitiesIsRefused)
{
    std::string entity;
    std::string ends;
    for (int i = 0; i < 400; ++i)
    {
        entity += "<A>";
        ends += "</A>";
    }
    EXPECT_FALSE(Parse("<!DOCTYPE S [<!ENTITY e '" + entity + ends + "'>]><S>&e;</S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Fatal error line 1: elements nested deeper than 256 (skin.xml)"});
}

TEST_F(HostileSkins, DeepestHonestFileIsRead)
{
    std::string deep;
    std::string ends;
    for (std::size_t i = 0; i < CLimits::maxFileDepth; ++i)
    {
        deep += "<A>";
        ends += "</A>";
    }
    EXPECT_TRUE(Parse(deep + ends));
}

TEST_F(HostileSkins, DeepNestingThroughTemplatesIsStopped)
{
    std::string body;
    std::string ends;
    for (int i = 0; i < 200; ++i)
    {
        body += "<BOX>";
        ends += "</BOX>";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'>" + body + "<T/>" + ends + "</TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Parsing stopped, line 1: elements are nested deeper than 1024 (skin.xml)"});
}

TEST_F(HostileSkins, DeepRecordingIsStopped)
{
    rig.OnStart("LIST",
                [&](const CNamedAttributes&)
                {
                    rig.parser.StartRecording(nullptr);
                    return true;
                });
    std::string body;
    std::string ends;
    for (int i = 0; i < 200; ++i)
    {
        body += "<BOX>";
        ends += "</BOX>";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'>" + body + "<T/>" + ends + "</TEMPLATE><LIST><T/></LIST></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Parsing stopped, line 1: elements are nested deeper than 1024 (skin.xml)"});
}

TEST_F(HostileSkins, HugeFileIsNotRead)
{
    rig.folder.Write("skin.xml", "<S/>");
    std::filesystem::resize_file(rig.folder.GetPath("skin.xml"), std::uintmax_t{200} << 20U);
    EXPECT_FALSE(ParseExisting());
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 0: file longer than 8388608 bytes (skin.xml)"});
}

TEST_F(HostileSkins, LongNamesAttributesAndTagsAreRefused)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"<" + std::string(300, 'A') + "/>", "a name longer than 256 bytes"},
        {"<S " + std::string(300, 'a') + "='1'/>", "a name longer than 256 bytes"},
        {"<S a='" + std::string(2000000, 'a') + "'/>", "an attribute longer than 1048576 bytes"},
    };
    for (const auto& [skin, reason] : cases)
    {
        EXPECT_FALSE(Parse(skin));
        EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 1: " + reason + " (skin.xml)"});
    }
    std::string many = "<S";
    for (int i = 0; i < 500000; ++i)
    {
        many += " a" + std::to_string(i) + "=''";
    }
    EXPECT_FALSE(Parse(many + "/>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 1: more than 1024 attributes (skin.xml)"});
}

TEST_F(HostileSkins, EncodingsThatHideMarkupAreRefused)
{
    for (const char* encoding : {"UTF-7", "ISO-2022-JP", "IBM037", "HZ-GB-2312", "SCSU"})
    {
        EXPECT_FALSE(Parse(std::string("<?xml version='1.0' encoding='") + encoding + "'?><S/>"));
        EXPECT_EQ(rig.GetMessages(),
                  Messages{"0 Fatal error line 1: an encoding that is not supported (skin.xml)"});
    }
}

TEST_F(HostileSkins, DefinitionsInACircleAreCutOff)
{
    EXPECT_FALSE(Parse("<S><DEFINE><A base_type='B'/><B base_type='A'/></DEFINE><A/><BOX/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 'A': definitions lead on through more than 256 names"});
    EXPECT_EQ(rig.trace.text, "<S><BOX></BOX></S>");
}

TEST_F(HostileSkins, DefinitionsInACircleAreCutOffEachTime)
{
    std::string uses;
    for (int i = 0; i < 100000; ++i)
    {
        uses += "<A/>";
    }
    EXPECT_FALSE(Parse("<S><DEFINE><A base_type='B'/><B base_type='A'/></DEFINE>" + uses + "</S>"));
    ExpectMessage("0 'A': definitions lead on through more than 256 names");
}

TEST_F(HostileSkins, TemplateThatUsesItselfTwiceIsStopped)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><T/><T/></TEMPLATE><T/></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, TemplatesThatUseEachOtherAreStopped)
{
    std::string templates;
    for (int i = 0; i < 100; ++i)
    {
        const std::string next = std::to_string((i + 1) % 100);
        templates += "<TEMPLATE id='T" + std::to_string(i) + "'><BOX/><T" + next + "/></TEMPLATE>";
    }
    EXPECT_FALSE(Parse("<S>" + templates + "<T0/></S>"));
    ExpectMessage("Parsing stopped, line 1: ");
}

TEST_F(HostileSkins, TemplateThatUsesItselfBehindItsHoleIsStopped)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><TEMPLATE_INNER_CONTENT/><T/></TEMPLATE><T/></S>"));
    ExpectMessage("Parsing stopped, line 1: templates and repeats are nested deeper than 4096");
}

TEST_F(HostileSkins, RecursionToTheLimitFitsTheStack)
{
    EXPECT_FALSE(
        Parse("<S><TEMPLATE id='T'><BOX><ROW><T a='$a$'/></ROW></BOX></TEMPLATE><T a='1'/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"1 Recursion detected: 'T has been recursively instantiated more than 256 times."});
    EXPECT_TRUE(rig.trace.text.ends_with("</ROW></BOX><A></A></S>"));
    // Nested templates take none of it.
    const std::size_t nested = stackBytes;
    EXPECT_TRUE(Parse("<S><TEMPLATE id='T'><BOX><ROW/></BOX></TEMPLATE><T a='1'/><A/></S>"));
    constexpr std::size_t messages = 4096;
    EXPECT_LE(nested, stackBytes + messages);
}

TEST_F(HostileSkins, VariableThatDoublesItselfIsCutOff)
{
    std::string doublings;
    for (int i = 0; i < 40; ++i)
    {
        doublings += "<VARIABLE id='v' value='$v$$v$' override='true'/>";
    }
    EXPECT_FALSE(Parse("<S><VARIABLE id='v' value='ha'/>" + doublings + "<A/></S>"));
    ExpectMessage("0 'VARIABLE': attributes become too long when variables are put in");
    EXPECT_TRUE(rig.trace.text.ends_with("<A></A></S>"));
}

TEST_F(HostileSkins, LongVariableInManyElementsIsStopped)
{
    const std::string half(500000, 'x');
    EXPECT_FALSE(
        Parse("<S><VARIABLE id='v' value='" + half + "'/><REPEAT count='1000000'><A x='$v$'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, LongParameterInManyAttributesIsCutOff)
{
    const std::string half(500000, 'x');
    std::string attributes;
    for (int i = 0; i < 1000; ++i)
    {
        attributes += " a" + std::to_string(i) + "='$p$'";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T' p='" + half + "'><A" + attributes +
                       "/></TEMPLATE>"
                       "<REPEAT count='1000000'><T/></REPEAT></S>"));
    ExpectMessage("0 'A': attributes become too long when variables are put in");
    ExpectMessage("Parsing stopped");
}

TEST_F(HostileSkins, LongDefinitionInManyElementsIsStopped)
{
    const std::string half(500000, 'x');
    EXPECT_FALSE(Parse("<S><DEFINE><D base_type='A' x='" + half +
                       "'/></DEFINE>"
                       "<REPEAT count='1000000'><D/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, FileThatIncludesItselfIsCutOff)
{
    rig.folder.Write("part.xml", "<P><INCLUDE file='part.xml'/></P>");
    EXPECT_FALSE(Parse("<S><INCLUDE file='part.xml'/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 " + rig.folder.GetPath("part.xml") +
                                          ": files include each other more than 16 deep"});
    EXPECT_TRUE(rig.trace.text.ends_with("<A></A></S>"));
}

TEST_F(HostileSkins, FileThatIncludesItselfByAnotherPathIsCutOff)
{
    std::filesystem::create_directory(rig.folder.GetPath("sub"));
    EXPECT_FALSE(Parse("<S><INCLUDE_ONCE file='sub/../skin.xml'/><INCLUDE file='./skin.xml'/></S>"));
    ExpectMessage("skin.xml: files include each other more than 16 deep");
}

TEST_F(HostileSkins, FileThatIncludesItselfTwiceIsStopped)
{
    EXPECT_FALSE(Parse("<S><INCLUDE file='skin.xml'/><INCLUDE file='skin.xml'/></S>"));
    ExpectMessage("Parsing stopped, line 0: the files come to more than 16777216 bytes (skin.xml)");
}

TEST_F(HostileSkins, IncludesAtTheirDeepestInTemplatesFitTheStack)
{
    rig.folder.Write(
        "part.xml",
        "<P><TEMPLATE id='T$n$'><BOX><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE><REPEAT count='1'><REPEAT "
        "count='1'>"
        "<VARIABLE id='n' value='$n$i' override='true'/><INCLUDE file='part.xml'/></REPEAT></REPEAT>"
        "<VARIABLE id='f' override='true' formula='" +
            std::string(90, '(') + "1" + std::string(90, ')') + "'/></P>");
    EXPECT_FALSE(Parse("<S><VARIABLE id='n' value='i'/><INCLUDE file='part.xml'/></S>"));
    ExpectMessage("files include each other more than 16 deep");
}

TEST_F(HostileSkins, RepeatsOfBillionsAreStopped)
{
    EXPECT_FALSE(
        Parse("<S><REPEAT count='2000000000'><REPEAT count='2000000000'><A/></REPEAT></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'/></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><REPEAT count='0'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT index_list='" + std::string(1000000, ';') + "'/></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, RepeatedFormulasAreStopped)
{
    EXPECT_FALSE(Parse(
        "<S><REPEAT count='2000000000'><VARIABLE id='v' override='true' formula='1+2*3'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
    const std::string sum(std::string(8000, '1') + "+1");
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><VARIABLE id='v' override='true' formula='" + sum +
                       "'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, RepeatedIncludesOfNothingAreStopped)
{
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><INCLUDE file='none$index$.xml'/></REPEAT></S>"));
    ExpectMessage("make more than 167772160 bytes of elements"); // in whichever file the last one falls
}

TEST_F(HostileSkins, RepeatedTemplatesThatAreKeptAreStopped)
{
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><TEMPLATE id='T$index$'><A a='1' "
                       "b='2'/><B/></TEMPLATE></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><VARIABLE id='v$index$' value='1'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, EndlessMessagesAreCutOff)
{
    const std::string name(250, 'A');
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><" + name + "/></REPEAT></S>"));
    ExpectMessage("0 Too many messages: the others are not shown");
    std::size_t bytes = 0;
    for (const std::string& message : rig.GetAllMessages())
    {
        bytes += message.size();
    }
    EXPECT_LE(bytes, CLimits::maxMessageBytes + 1000);
}

TEST_F(HostileSkins, ParserIsWellAfterEachOfThem)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><BOX><T/><T/></BOX></TEMPLATE><T/></S>"));
    EXPECT_TRUE(Parse("<S><TEMPLATE id='T'><A/></TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
    EXPECT_EQ(rig.GetMessages(), Messages());
}

} // namespace

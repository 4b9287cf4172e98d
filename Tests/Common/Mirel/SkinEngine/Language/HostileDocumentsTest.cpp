// What the XML reader must stand before the skin language comes into it.

#include "HostileRig.h"
#include "Mirel/SkinEngine/Limits.h"

#include <filesystem>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

using HostileDocuments = CHostileRig;

TEST_F(HostileDocuments, ExternalEntitiesAreNotRead)
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

TEST_F(HostileDocuments, ExternalEntitiesInAttributesAndDeclarationsAreNotRead)
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
        EXPECT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), length), 0);
        EXPECT_EQ(::listen(listener, 1), 0);
        EXPECT_EQ(::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length), 0);
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

TEST_F(HostileDocuments, NothingIsFetchedFromTheNetwork)
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

TEST_F(HostileDocuments, SchemasAreNotRead)
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

TEST_F(HostileDocuments, EntitiesInTextAreBounded)
{
    EXPECT_FALSE(Parse(Laughs() + "<S>&a9;</S>"));
    ExpectMessage("Fatal error line 1: ");
}

TEST_F(HostileDocuments, EntitiesInAttributesAreBounded)
{
    EXPECT_FALSE(Parse(Laughs() + "<S x='&a9;'/>"));
    ExpectMessage("Fatal error line 1: ");
    EXPECT_EQ(rig.trace.text, "");
}

TEST_F(HostileDocuments, LongEntityMakesNoLongAttributes)
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

TEST_F(HostileDocuments, HonestEntitiesAndDefaultsWork)
{
    EXPECT_TRUE(Parse("<!DOCTYPE S [<!ENTITY e 'text'><!ATTLIST A y CDATA 'd'>]><S><A x='&e;&amp;'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><A x='text&' y='d'></A></S>");
}

TEST_F(HostileDocuments, DefaultAttributesAreBounded)
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

TEST_F(HostileDocuments, LongDocumentTypeIsRefused)
{
    EXPECT_FALSE(
        Parse("<!DOCTYPE S [<!ENTITY e '" + std::string(CLimits::maxDocumentTypeBytes, 'x') + "'>]><S/>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Fatal error line 1: document type longer than 16384 bytes (skin.xml)"});
}

TEST_F(HostileDocuments, DeepNestingIsRefused)
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

TEST_F(HostileDocuments, DeepNestingInEntitiesIsRefused)
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

TEST_F(HostileDocuments, DeepestHonestFileIsRead)
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

TEST_F(HostileDocuments, HugeFileIsNotRead)
{
    rig.folder.Write("skin.xml", "<S/>");
    std::filesystem::resize_file(rig.folder.GetPath("skin.xml"), std::uintmax_t{200} << 20U);
    EXPECT_FALSE(ParseExisting());
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 0: file longer than 8388608 bytes (skin.xml)"});
}

TEST_F(HostileDocuments, LongNamesAttributesAndTagsAreRefused)
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

TEST_F(HostileDocuments, EncodingsThatHideMarkupAreRefused)
{
    for (const char* encoding : {"UTF-7", "ISO-2022-JP", "IBM037", "HZ-GB-2312", "SCSU"})
    {
        EXPECT_FALSE(Parse(std::string("<?xml version='1.0' encoding='") + encoding + "'?><S/>"));
        EXPECT_EQ(rig.GetMessages(),
                  Messages{"0 Fatal error line 1: an encoding that is not supported (skin.xml)"});
    }
}

} // namespace

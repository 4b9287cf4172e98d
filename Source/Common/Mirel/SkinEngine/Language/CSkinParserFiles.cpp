// How the parser reads files, finds those that a skin names, and reports.

#include "Mirel/Core/CAutoCLocale.h"
#include "Mirel/Core/NewText.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/Serialization/WholeFile.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/CXMLNamedAttributes.h"
#include "Mirel/SkinEngine/Language/CXercesSession.h"
#include "Mirel/SkinEngine/Language/CXmlFileReader.h"
#include "Mirel/SkinEngine/Language/XmlPrescan.h"
#include "Mirel/SkinEngine/Limits.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include <xercesc/util/OutOfMemoryException.hpp>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

char* NewTextOrNull(const std::optional<std::string>& text)
{
    return text ? Core::NewText(*text) : nullptr;
}

} // namespace

/// Goes back to the including file at its end. What a file that broke off left open does not reach into that.
class CSkinParser::CFileScope
{
public:
    CFileScope(CSkinParser& parser_, const std::string& path)
        : parser(&parser_),
          file(parser_.state.GetCurrentFile()),
          reader(parser_.reader),
          depth(parser_.depth),
          openUses(parser_.openUses.size()),
          listenedDepth(parser_.listened.GetDepth())
    {
        parser->state.SetCurrentFile(path);
        parser->reader = nullptr;
        ++parser->fileDepth;
    }
    CFileScope(const CFileScope&) = delete;
    CFileScope& operator=(const CFileScope&) = delete;
    ~CFileScope()
    {
        --parser->fileDepth;
        parser->reader = reader;
        parser->state.SetCurrentFile(std::move(file));
        if (!complete)
        {
            CloseRest();
        }
    }

    void SetComplete(bool complete_) { complete = complete_; }

private:
    void CloseRest()
    {
        parser->listened.EndDownTo(listenedDepth);
        while (parser->openUses.size() > openUses)
        {
            parser->openUses.pop_back();
        }
        // No file is begun while one of these is on.
        parser->inDefine = false;
        parser->inUndefine = false;
        parser->recordingTemplate = false;
        parser->recordingRepeat = false;
        parser->repeats.Clear();
        parser->depth = depth;
        parser->DropExpiredVariables();
    }

    CSkinParser* parser;
    std::string file;
    const CXmlFileReader* reader;
    int depth;
    std::size_t openUses;
    std::size_t listenedDepth;
    bool complete = false;
};

std::unique_ptr<CXercesSession> CSkinParser::OpenLibrary()
{
    return std::make_unique<CXercesSession>();
}

bool CSkinParser::ParseFile(const char* path)
{
    if (parsing)
    {
        return Fail("A file cannot be parsed from within the parse of another");
    }
    parsing = true;
    log.Reset();
    std::unique_ptr<CXercesSession> library;
    try
    {
        library = OpenLibrary();
    }
    catch (...)
    {
        Post(CMessageKind::Error, "Unknown internal error");
    }
    Begin();
    {
        const Core::CAutoCLocale pointInNumbers;
        if (library != nullptr)
        {
            const std::string mainFile = NormalizePath(path == nullptr ? "" : path);
            state.SetRootFilePath(mainFile.substr(0, mainFile.rfind('/') + 1));
            Conclude(ParseOneFile(mainFile));
        }
        else
        {
            success = false;
        }
        Finish();
    }
    parsing = false;
    return success;
}

void CSkinParser::Begin()
{
    ResetWalk();
    budget.Reset();
    recording.reset();
    recordingContext = nullptr;
    recordingDepth = 0;
    success = true;
    stopped = false;
    paths.TakeLookupCount();
}

/// What the file's own language left behind. A recording stays for its client, who may want its context back.
void CSkinParser::Finish()
{
    ResetWalk();
    definitions.Clear();
    templates.Clear();
    variables.Clear();
    state.SetRootFilePath("");
    faultLine.reset();
}

/// A file may break off anywhere: nothing that was open may reach into the next one.
void CSkinParser::ResetWalk()
{
    expansions.clear();
    openUses.clear();
    localVariables.clear();
    listened.Clear();
    repeats.Clear();
    repeat = {};
    recordingRepeat = false;
    recordingTemplate = false;
    inDefine = false;
    inUndefine = false;
    firstElementSeen = false;
    depth = 0;
    includedOnce.clear();
}

bool CSkinParser::ParseOneFile(const std::string& path)
{
    CFileScope scope(*this, path);
    if (!Exists(path))
    {
        Post(CMessageKind::Error, path + ": file does not exist");
        return false;
    }
    std::string bytes;
    if (!ReadBytes(path, bytes))
    {
        return false;
    }
    try
    {
        const CXercesSession session;
        CXmlFileReader file(*this);
        reader = &file;
        scope.SetComplete(file.Read(bytes));
    }
    catch (const xercesc::OutOfMemoryException&)
    {
        Post(CMessageKind::Error, "Out of memory");
        return false;
    }
    catch (...)
    {
        Post(CMessageKind::Error, "Internal error");
        return false;
    }
    return success;
}

/// The file's content, if the XML library may see it.
bool CSkinParser::ReadBytes(const std::string& path, std::string& bytes)
{
    const auto refuse = [this](std::size_t line, const std::string& reason)
    {
        OnFault(EFault::FatalError, line, reason);
        return false;
    };
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error && size > CLimits::maxFileBytes)
    {
        return refuse(0, "file longer than " + std::to_string(CLimits::maxFileBytes) + " bytes");
    }
    if (!Serialization::ReadFileWhole(path.c_str(), CLimits::maxFileBytes, bytes))
    {
        return refuse(0, "the file cannot be read");
    }
    if (!budget.ChargeFile(bytes.size()))
    {
        return Stop("the files come to more than " + std::to_string(CLimits::maxReadBytes) + " bytes");
    }
    const CPrescanResult found = PrescanXml(bytes);
    return found.reason.empty() || refuse(found.line, found.reason);
}

bool CSkinParser::Include(const CNamedAttributes& attributes, bool once)
{
    const char* file = attributes.Get("file");
    const bool named = file != nullptr && *file != '\0';
    const std::string path = named ? paths.Resolve(state.GetRootFilePath(), file) : "";
    if (once && !includedOnce.insert(path).second)
    {
        return true;
    }
    if (named && !CheckInside(path))
    {
        return false;
    }
    if (fileDepth >= CLimits::maxIncludeDepth)
    {
        Post(CMessageKind::Error, path + ": files include each other more than " +
                                      std::to_string(CLimits::maxIncludeDepth) + " deep");
        return false;
    }
    return ParseOneFile(path);
}

bool CSkinParser::CheckInside(const std::string& path)
{
    const bool inside = paths.IsInside(state.GetRootFilePath(), path);
    if (!inside)
    {
        Post(CMessageKind::Error, path + ": file is outside of the skin's folder");
    }
    return Charge(static_cast<std::size_t>(paths.TakeLookupCount()) * CLimits::fileTestCharge) && inside;
}

bool CSkinParser::Exists(const std::string& path)
{
    const bool exists = paths.Exists(path);
    return Charge(static_cast<std::size_t>(paths.TakeLookupCount()) * CLimits::fileTestCharge) && exists;
}

CFileAccess CSkinParser::GetFileAccess()
{
    return {[this](const char* value) -> std::optional<std::string>
            {
                std::string path = paths.Resolve(state.GetRootFilePath(), value);
                return CheckInside(path) ? std::optional(std::move(path)) : std::nullopt;
            },
            [this](const std::string& path) { return CheckInside(path) && Exists(path); }};
}

char* CSkinParser::GetFileAttribute(const CNamedAttributes& attributes, const CNamePieces& pieces)
{
    return NewTextOrNull(FindFileAttribute(attributes, pieces, GetFileAccess()));
}

char* CSkinParser::GetFileAttribute(const CNamedAttributes& attributes, const CNamePieces& base,
                                    const CNamePieces& suffix)
{
    return NewTextOrNull(FindFileAttribute(attributes, base, suffix, GetFileAccess()));
}

char* CSkinParser::GetSimpleFileAttribute(const CNamedAttributes& attributes, const char* base,
                                          const char* suffix)
{
    return NewTextOrNull(FindSimpleFileAttribute(attributes, base, suffix, GetFileAccess()));
}

void CSkinParser::SetDataFolder(const char* path)
{
    paths.SetDataFolder(path == nullptr ? "" : path);
}

const char* CSkinParser::GetDataFolder() const
{
    return paths.GetDataFolder().c_str();
}

CPublicState& CSkinParser::GetPublicState()
{
    return state;
}

const CPublicState& CSkinParser::GetPublicState() const
{
    return state;
}

std::string CSkinParser::GetCurrentFile() const
{
    const std::string& file = state.GetCurrentFile();
    const std::string& root = state.GetRootFilePath();
    return file.starts_with(root) ? file.substr(root.size()) : file;
}

int CSkinParser::GetCurrentLine() const
{
    if (faultLine)
    {
        return *faultLine;
    }
    return reader == nullptr ? 0 : reader->GetLine();
}

bool CSkinParser::OnStartTag(const std::string& name, CXMLNamedAttributes& attributes)
{
    currentElementName = name;
    StartElement(name.c_str(), attributes);
    return !stopped;
}

bool CSkinParser::OnEndTag(const std::string& name)
{
    EndElement(name.c_str());
    return !stopped;
}

void CSkinParser::OnFault(EFault fault, std::size_t line, const std::string& message)
{
    const bool isWarning = fault == EFault::Warning;
    const std::string prefix = isWarning ? "" : fault == EFault::Error ? "line " : "Fatal error line ";
    faultLine = Core::SaturateToInt32(static_cast<std::int64_t>(line));
    Post(isWarning ? CMessageKind::Warning : CMessageKind::Error,
         prefix + std::to_string(line) + ": " + message + " (" + GetCurrentFile() + ")");
    faultLine.reset();
    Conclude(isWarning);
}

void CSkinParser::Post(int kind, const std::string& text)
{
    log.Post(kind, text.c_str(), 0);
}

bool CSkinParser::Fail(const std::string& text)
{
    Post(CMessageKind::Error, text);
    return Conclude(false);
}

/// Ends the walk: every way in is closed from here on.
bool CSkinParser::Stop(const std::string& reason)
{
    if (!stopped)
    {
        stopped = true;
        success = false;
        const std::string text = "Parsing stopped, line " + std::to_string(GetCurrentLine()) + ": " + reason +
                                 " (" + GetCurrentFile() + ")";
        log.PostLast(CMessageKind::Error, text.c_str());
    }
    return false;
}

bool CSkinParser::Charge(std::size_t bytes)
{
    return budget.ChargeExpansion(bytes) ||
           Stop("templates, repeats and variables make more than " +
                std::to_string(CLimits::maxExpansionBytes) + " bytes of elements");
}

} // namespace Mirel::SkinEngine

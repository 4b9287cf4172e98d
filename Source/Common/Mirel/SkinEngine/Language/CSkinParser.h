#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Core/TArgReturnCommand.h"
#include "Mirel/Core/TReturnCommand.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/SkinEngine/Language/CBoundedLog.h"
#include "Mirel/SkinEngine/Language/CDefineParser.h"
#include "Mirel/SkinEngine/Language/CExpansion.h"
#include "Mirel/SkinEngine/Language/CListenedElements.h"
#include "Mirel/SkinEngine/Language/CParseBudget.h"
#include "Mirel/SkinEngine/Language/CPublicState.h"
#include "Mirel/SkinEngine/Language/CSkinPaths.h"
#include "Mirel/SkinEngine/Language/CTemplateParser.h"
#include "Mirel/SkinEngine/Language/FileAttributes.h"
#include "Mirel/SkinEngine/Language/IParserElementHandler.h"
#include "Mirel/SkinEngine/Language/IXmlEvents.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

class CXercesSession;
class CXmlFileReader;
class IElementListener;
class IScriptEngine;

/// Reads the files of the skin language, skins and models: variables, definitions, templates, repeats and
/// includes are resolved here, and what an element means is left to the handlers that a client registers.
///
/// For each pass over a file: ResetHandlers, SetRootElement, the registrations, SetVariable, ParseFile. Only
/// the handlers, the root element and the data folder outlive ParseFile. A handler may call StartElement and
/// EndElement, and may replay a template into the parser. Messages go to the log, and no failure stops the
/// walk but a broken file and what exceeds CLimits.
///
/// Belongs to one thread at a time. While a file is parsed, this thread's locale is "C".
class CSkinParser : public IParserElementHandler, public IXmlEvents
{
public:
    using CStartCommand = Core::TIArgReturnCommand<bool, const Containers::CNamedAttributes&>;
    using CEndCommand = Core::TIReturnCommand<bool>;

    /// The log is not owned and outlives the parser.
    explicit CSkinParser(CoreUtilities::IMessageLog& log);
    CSkinParser(const CSkinParser&) = delete;
    CSkinParser& operator=(const CSkinParser&) = delete;
    ~CSkinParser() override;

    /// Drops all handlers but those of the language itself.
    void ResetHandlers();

    /// The element that opens the main file, and may stand nowhere else. Empty or null: any.
    void SetRootElement(const char* name);

    /// Take ownership of the command and destroy a former one of that name. False from a command marks the
    /// parse as failed. An end may come without its start, after a refused element. No handler registers or
    /// resets handlers.
    void RegisterStartHandler(const char* name, CStartCommand* command);
    void RegisterEndHandler(const char* name, CEndCommand* command);

    /// For the next parse only, unless called by a handler.
    void SetVariable(const char* name, const char* value);

    /// The product's own data folder: beside the folder of the main file the only place from which files are
    /// taken. Null or empty, as at first, for none. Kept for all parses.
    void SetDataFolder(const char* path);
    const char* GetDataFolder() const;

    /// Not owned; null for none.
    void SetElementListener(IElementListener* listener);

    /// One whole parse. True if nothing failed.
    bool ParseFile(const char* path);

    /// Name of the last start tag that was read from a file: for handlers' messages.
    const char* GetCurrentElementName() const;

    /// The file that is being read, relative to the folder of the main file where it stands below it, and the
    /// line that the reader has come to, 0 if none: for logs, at the time of a message.
    std::string GetCurrentFile() const;
    int GetCurrentLine() const;

    bool StartElement(const char* name, Containers::CNamedAttributes& attributes) override;
    bool EndElement(const char* name) override;

    /// From now on elements are recorded, with templates expanded and variables substituted, instead of
    /// handled, until the end of the element whose handler calls this. Does nothing while a recording runs.
    /// The context comes back from StopRecording.
    void StartRecording(void* context);

    /// The recorded elements, which the caller then owns; null if no recording was running. For the end
    /// handler of the recording element; after a parse that broke off, for the client that wants its context.
    IParsedTemplate* StopRecording(void*& context);

    /// The path in an attribute whose name is joined from pieces, such as {"image", "_hover"}. If there is no
    /// such attribute: that of fewer pieces, with the others inserted before the path's last ".", if that
    /// file exists. Allocated with array-new, the caller frees it; null if nothing is found, or if the path
    /// leads out of the folders that files may come from, which goes to the log.
    char* GetFileAttribute(const Containers::CNamedAttributes& attributes,
                           const std::vector<std::string>& pieces);

    /// The same, where base and suffix are shortened independently of each other.
    char* GetFileAttribute(const Containers::CNamedAttributes& attributes,
                           const std::vector<std::string>& base, const std::vector<std::string>& suffix);

    /// The attribute base + suffix, else the attribute base with the suffix inserted before its last "." and
    /// no look at the file. Null and ownership as above.
    char* GetSimpleFileAttribute(const Containers::CNamedAttributes& attributes, const char* base,
                                 const char* suffix);

    /// Where this parser stands; reading it from a stream puts the parser there.
    CPublicState& GetPublicState();
    const CPublicState& GetPublicState() const;

    // For the reader of a file.
    bool OnStartTag(const std::string& name, CXMLNamedAttributes& attributes) override;
    bool OnEndTag(const std::string& name) override;
    void OnFault(EFault fault, std::size_t line, const std::string& message) override;

protected:
    /// Starts the XML library for the time of a parse; what it throws ends the parse with a message.
    virtual std::unique_ptr<CXercesSession> OpenLibrary();

    /// Not owned; null, as here, means that scripts are not run.
    virtual IScriptEngine* GetScriptEngine() { return nullptr; }

private:
    class CEntry;
    class CFileScope;

    struct CLocalVariable
    {
        int depth; ///< Of the element that it lives in.
        std::string name;
    };

    // The walk.
    bool ProcessStart(const char* name, Containers::CNamedAttributes& attributes);
    bool StartResolved(const char* name, Containers::CNamedAttributes& attributes);
    bool CheckRootElement(const char* name);
    bool StartDefinition(const char* name, Containers::CNamedAttributes& attributes);
    bool StartUse(const char* name, CTemplateRootNode& root, const Containers::CNamedAttributes& attributes);
    bool StartRecorded(const char* name, const Containers::CNamedAttributes& attributes);
    bool StartHandled(const char* name, const Containers::CNamedAttributes& attributes);
    bool ProcessEnd(const char* name);
    bool EndHandled(const char* name);
    void RefuseText(const char* name) override;
    bool Conclude(bool result);
    void EnterElement();
    void LeaveElement();
    void DropExpiredVariables();

    // Templates and repeats in progress.
    void RunExpansions(std::size_t base);
    void RunStep();
    void EmitStart();
    void SuspendReplay();
    void FinishReplay();
    void BeginPass();
    void ContinueUse();
    bool PushExpansion(CExpansion expansion);

    // The language's own elements.
    void RegisterLanguage();
    bool StartInclude(const Containers::CNamedAttributes& attributes);
    bool StartIncludeOnce(const Containers::CNamedAttributes& attributes);
    bool StartDefine(const Containers::CNamedAttributes& attributes);
    bool EndDefine();
    bool StartUndefine(const Containers::CNamedAttributes& attributes);
    bool EndUndefine();
    bool StartTemplate(const Containers::CNamedAttributes& attributes);
    bool EndTemplate();
    bool StartVariable(const Containers::CNamedAttributes& attributes);
    bool StartLocalVariable(const Containers::CNamedAttributes& attributes);
    bool StartRepeat(const Containers::CNamedAttributes& attributes);
    bool EndRepeat();
    bool StartScript(const Containers::CNamedAttributes& attributes);
    std::unique_ptr<Math::IConstant> Compile(const char* formula);
    bool ReadInteger(const Containers::CNamedAttributes& attributes, const char* name, int& value);

    // Files and messages.
    void Begin();
    void Finish();
    void ResetWalk();
    bool ParseOneFile(const std::string& path);
    bool ReadBytes(const std::string& path, std::string& bytes);
    bool Include(const Containers::CNamedAttributes& attributes, bool once);
    bool CheckInside(const std::string& path);
    bool Exists(const std::string& path);
    CFileAccess GetFileAccess();
    void Post(int kind, const std::string& text);
    bool Fail(const std::string& text);
    bool Stop(const std::string& reason);
    bool Charge(std::size_t bytes);

    CBoundedLog log;
    CParseBudget budget;
    Containers::TStringMap<std::unique_ptr<CStartCommand>> startHandlers;
    Containers::TStringMap<std::unique_ptr<CEndCommand>> endHandlers;
    CListenedElements listened;

    std::string currentElementName;
    std::string rootElement;
    bool success = true;
    bool stopped = false; ///< What the parse may spend is spent.
    bool parsing = false;
    bool firstElementSeen = false;
    int depth = 0; ///< Of open elements. Refused ones count at their end alone, so that it may fall below 0.

    CDefineParser definitions;
    CTemplateParser templates;
    CTemplateParser repeats;
    CRepeatRegisters repeat;
    bool recordingRepeat = false;
    bool recordingTemplate = false;
    bool inDefine = false;
    bool inUndefine = false;

    std::unique_ptr<CTemplateParser> recording;
    void* recordingContext = nullptr;
    int recordingDepth = 0;

    Containers::CNamedAttributes variables;
    std::vector<CLocalVariable> localVariables;

    std::vector<CExpansion> expansions;
    /// One for each open use of a template; null where it needs no continuation.
    std::vector<std::unique_ptr<CParsedTemplateRootNodeInstance>> openUses;
    int entryDepth = 0;

    CPublicState state;
    CSkinPaths paths;
    std::set<std::string> includedOnce;
    const CXmlFileReader* reader = nullptr; ///< Of the current file.
    int fileDepth = 0;
    std::optional<int> faultLine;
};

} // namespace Mirel::SkinEngine

#include "Mirel/GUI/Native/Dialogs/DialogArguments.h"

#include "Mirel/Serialization/Utf8.h"

#include <algorithm>
#include <string_view>

namespace Mirel::GUI
{

namespace
{
/// A window is not a log; and the system limits the length of an argument.
constexpr std::size_t longestText = 4000;

constexpr const char* cancelLabel = "Cancel";

std::string Shorten(const std::string& text)
{
    if (text.size() <= longestText)
    {
        return text;
    }
    std::size_t size = longestText;
    while (size > 0 && Serialization::IsUtf8Continuation(text[size]))
    {
        --size;
    }
    return text.substr(0, size) + "\n...";
}

/// Both helpers take a backslash for the beginning of an escape.
std::string EscapeBackslashes(std::string_view text)
{
    std::string escaped;
    for (const char c : text)
    {
        escaped.append(c == '\\' ? 2 : 1, c);
    }
    return escaped;
}

/// As rich text on purpose, since the helper would guess whether it is.
std::string MakeRich(std::string_view text)
{
    std::string rich = "<qt>";
    for (const char c : text)
    {
        switch (c)
        {
        case '&':
            rich += "&amp;";
            break;
        case '<':
            rich += "&lt;";
            break;
        case '>':
            rich += "&gt;";
            break;
        case '\n':
            rich += "<br/>";
            break;
        default:
            rich += c;
        }
    }
    return rich + "</qt>";
}

std::string StartOf(const SFileRequest& request)
{
    std::string start = request.folder;
    if (!start.empty() && start.back() != '/')
    {
        start += '/';
    }
    return start + request.fileName;
}

std::string Join(const std::vector<std::string>& patterns)
{
    std::string joined;
    for (const std::string& pattern : patterns)
    {
        joined += joined.empty() ? "" : " ";
        joined += pattern;
    }
    return joined;
}

/// Bars and line ends would end the name within the helper's list.
std::string PlainName(std::string name)
{
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '|' || c == '\n'; }, ' ');
    return name;
}

const char* ZenityKind(const SMessage& message)
{
    if (message.buttons != EMessageButtons::Ok)
    {
        return "--question";
    }
    switch (message.kind)
    {
    case EMessageKind::Error:
        return "--error";
    case EMessageKind::Warning:
        return "--warning";
    case EMessageKind::Information:
        break;
    }
    return "--info";
}

std::vector<std::string> ZenityMessage(const SMessage& message)
{
    std::vector<std::string> arguments = {ZenityKind(message), "--no-markup", "--title=" + message.title,
                                          "--text=" + EscapeBackslashes(Shorten(message.text))};
    const bool isChoice =
        message.buttons == EMessageButtons::YesNo || message.buttons == EMessageButtons::YesNoCancel;
    if (message.buttons != EMessageButtons::Ok)
    {
        arguments.push_back(isChoice ? "--ok-label=Yes" : "--ok-label=OK");
        arguments.push_back(isChoice ? "--cancel-label=No" : std::string("--cancel-label=") + cancelLabel);
    }
    if (message.buttons == EMessageButtons::YesNoCancel)
    {
        arguments.push_back(std::string("--extra-button=") + cancelLabel);
    }
    return arguments;
}

const char* KDialogKind(const SMessage& message)
{
    const bool isSerious = message.kind != EMessageKind::Information;
    switch (message.buttons)
    {
    case EMessageButtons::OkCancel:
        return "--warningcontinuecancel=";
    case EMessageButtons::YesNo:
        return isSerious ? "--warningyesno=" : "--yesno=";
    case EMessageButtons::YesNoCancel:
        return isSerious ? "--warningyesnocancel=" : "--yesnocancel=";
    case EMessageButtons::Ok:
        break;
    }
    switch (message.kind)
    {
    case EMessageKind::Error:
        return "--error=";
    case EMessageKind::Warning:
        return "--sorry=";
    case EMessageKind::Information:
        break;
    }
    return "--msgbox=";
}

void AddOwner(std::vector<std::string>& arguments, EDialogHelper helper, NativeWindowId owner)
{
    if (owner == 0)
    {
        return;
    }
    arguments.push_back("--attach=" + std::to_string(owner));
    if (helper == EDialogHelper::Zenity)
    {
        arguments.emplace_back("--modal");
    }
}
} // namespace

std::vector<std::string> MessageArguments(EDialogHelper helper, const std::string& path,
                                          const SMessage& message, NativeWindowId owner)
{
    std::vector<std::string> arguments = {path};
    AddOwner(arguments, helper, owner);
    if (helper == EDialogHelper::Zenity)
    {
        const std::vector<std::string> own = ZenityMessage(message);
        arguments.insert(arguments.end(), own.begin(), own.end());
        return arguments;
    }
    arguments.push_back("--title=" + message.title);
    arguments.push_back(KDialogKind(message) + EscapeBackslashes(MakeRich(Shorten(message.text))));
    return arguments;
}

std::vector<std::string> FileArguments(EDialogHelper helper, const std::string& path,
                                       const SFileRequest& request, NativeWindowId owner)
{
    std::vector<std::string> arguments = {path};
    AddOwner(arguments, helper, owner);
    arguments.push_back("--title=" + request.title);
    const std::string start = StartOf(request);
    if (helper == EDialogHelper::Zenity)
    {
        arguments.emplace_back("--file-selection");
        if (request.isSave)
        {
            arguments.insert(arguments.end(), {"--save", "--confirm-overwrite"});
        }
        if (!start.empty())
        {
            arguments.push_back("--filename=" + start);
        }
        for (const SFileFilter& filter : request.filters)
        {
            arguments.push_back("--file-filter=" + PlainName(filter.name) + " | " + Join(filter.patterns));
        }
        return arguments;
    }
    arguments.emplace_back(request.isSave ? "--getsavefilename" : "--getopenfilename");
    arguments.push_back(start.empty() ? "." : start);
    std::string filters;
    for (const SFileFilter& filter : request.filters)
    {
        filters += filters.empty() ? "" : "\n";
        filters += Join(filter.patterns);
        filters += '|';
        filters += PlainName(filter.name);
    }
    if (!filters.empty())
    {
        arguments.push_back(filters);
    }
    return arguments;
}

EMessageAnswer AnswerOf(EDialogHelper helper, EMessageButtons buttons, int exitCode,
                        const std::string& output)
{
    if (exitCode == 0 || buttons == EMessageButtons::Ok)
    {
        return EMessageAnswer::Yes;
    }
    if (buttons == EMessageButtons::YesNo)
    {
        return EMessageAnswer::No;
    }
    const bool saidCancel = helper == EDialogHelper::Zenity && output.rfind(cancelLabel, 0) == 0;
    const bool saidNo = buttons == EMessageButtons::YesNoCancel && exitCode == 1 && !saidCancel;
    return saidNo ? EMessageAnswer::No : EMessageAnswer::Cancel;
}

std::string PathOf(int exitCode, const std::string& output)
{
    const bool isUnknown = exitCode == -1; // A path tells enough.
    if (exitCode != 0 && !isUnknown)
    {
        return {};
    }
    const bool hasNewline = !output.empty() && output.back() == '\n';
    return output.substr(0, output.size() - (hasNewline ? 1 : 0));
}

std::string AddExtension(const std::string& path, const std::string& extension)
{
    const std::size_t name = path.rfind('/') == std::string::npos ? 0 : path.rfind('/') + 1;
    const std::size_t dot = path.rfind('.');
    // A dot in front hides a file; it begins no extension.
    const bool hasExtension = dot != std::string::npos && dot > name;
    return extension.empty() || hasExtension || name == path.size() ? path : path + "." + extension;
}

} // namespace Mirel::GUI

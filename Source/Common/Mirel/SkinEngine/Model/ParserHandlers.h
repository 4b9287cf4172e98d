#pragma once

#include "Mirel/SkinEngine/Language/CSkinParser.h"

#include <utility>

namespace Mirel::SkinEngine
{

// Handlers made from anything that can be called: `bool(const CNamedAttributes&)` for the start of an
// element, `bool()` for its end.

template <class F>
class TStartCommand : public CSkinParser::CStartCommand
{
public:
    explicit TStartCommand(F handle_) : handle(std::move(handle_)) {}
    bool Execute(const Containers::CNamedAttributes& attributes) override { return handle(attributes); }

private:
    F handle;
};

template <class F>
class TEndCommand : public CSkinParser::CEndCommand
{
public:
    explicit TEndCommand(F handle_) : handle(std::move(handle_)) {}
    bool Execute() override { return handle(); }

private:
    F handle;
};

template <class F>
void RegisterStart(CSkinParser& parser, const char* name, F handle)
{
    parser.RegisterStartHandler(name, new TStartCommand<F>(std::move(handle)));
}

template <class F>
void RegisterEnd(CSkinParser& parser, const char* name, F handle)
{
    parser.RegisterEndHandler(name, new TEndCommand<F>(std::move(handle)));
}

/// Reads a file of a dialect, whose first element has that name, with variables of the client's.
inline bool ParseFile(CSkinParser& parser, const char* path, const char* rootElement,
                      const Containers::CNamedAttributes& variables)
{
    parser.SetRootElement(rootElement);
    variables.Visit([&parser](const std::string& name, const std::string& value)
                    { parser.SetVariable(name.c_str(), value.c_str()); });
    return parser.ParseFile(path);
}

} // namespace Mirel::SkinEngine

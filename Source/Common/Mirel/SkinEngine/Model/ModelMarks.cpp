#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/COpenUrlFunctionWrapperCommand.h"
#include "Mirel/SkinEngine/Model/CollectionMarks.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/ParserHandlers.h"

#include <initializer_list>
#include <string_view>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

namespace
{

void MarkEach(const SModelMarks& marks, const CNamedAttributes& attributes,
              std::initializer_list<const char*> names)
{
    for (const char* name : names)
    {
        marks.exposure.Use(FindText(attributes, name));
    }
}

void MarkList(const SModelMarks& marks, const char* ids)
{
    for (const std::string& id : SplitIdentifiers(ids))
    {
        marks.exposure.Use(id.c_str());
    }
}

void MarkEnd(const SModelMarks& marks, const CNamedAttributes& attributes, const char* what, const char* name)
{
    const char* id = FindText(attributes, name);
    if (id == nullptr)
    {
        const std::string message = marks.element + ": invalid " + what + ", missing " + name + " attribute.";
        marks.log.Post(CoreUtilities::CMessageKind::Error, message.c_str(), 0);
    }
    marks.exposure.Use(id);
}

template <class F>
bool MarkFormula(const SModelMarks& marks, const CNamedAttributes& attributes, const F& formula,
                 const char* failure)
{
    MarkObject(marks, attributes);
    if (formula == nullptr)
    {
        marks.log.Post(CoreUtilities::CMessageKind::Error, failure, 0);
        return false;
    }
    for (const std::string& name : formula->GetParameters().GetConstantNames())
    {
        marks.exposure.Use(name.c_str());
    }
    for (const std::string& name : formula->GetParameters().GetFunctionNames())
    {
        marks.exposure.Use(name.c_str());
    }
    for (const std::string& name : formula->GetParameters().GetBinaryFunctionNames())
    {
        marks.exposure.Use(name.c_str());
    }
    return true;
}

} // namespace

/// What is kept or shown is wanted for that alone; anything else is wanted by who refers to it.
bool MarkObject(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    if (IsTrue(attributes, "persistent") || IsTrue(attributes, "exposed"))
    {
        marks.exposure.Use(FindText(attributes, "id"));
    }
    return true;
}

bool MarkInvokeAction(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    std::string url = GetText(attributes, "arg_url");
    if (std::string_view(GetText(attributes, "function")) == "OpenUrl" && !TakeQuotes(url))
    {
        marks.exposure.Use(url.c_str());
    }
    return true;
}

bool MarkFormulaParam(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    return MarkFormula(marks, attributes, CompileParametrizedConstant(FindText(attributes, "formula")),
                       "Cannot create param, invalid formula.");
}

bool MarkFormulaCurve(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    return MarkFormula(
        marks, attributes,
        CompileParametrizedFunction(FindText(attributes, "formula"), GetText(attributes, "variable", "x")),
        "Cannot create curve, invalid formula.");
}

bool MarkFormulaSurface(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    return MarkFormula(marks, attributes,
                       CompileParametrizedBinaryFunction(FindText(attributes, "formula"),
                                                         GetText(attributes, "x_variable", "x"),
                                                         GetText(attributes, "y_variable", "y")),
                       "Cannot create surface, invalid formula.");
}

bool MarkObjectOfParam(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEach(marks, attributes, {"param_id"});
    return MarkObject(marks, attributes);
}

bool MarkObjectOfCurve(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEach(marks, attributes, {"curve_id"});
    return MarkObject(marks, attributes);
}

bool MarkCurveValueParam(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEach(marks, attributes, {"curve_id", "x_param_id"});
    return MarkObject(marks, attributes);
}

bool MarkSurfaceValueParam(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEach(marks, attributes, {"surface_id", "x_param_id", "y_param_id"});
    return MarkObject(marks, attributes);
}

bool MarkLink(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEnd(marks, attributes, "link", "from");
    MarkEnd(marks, attributes, "link", "to");
    return true;
}

bool MarkMultiLink(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkList(marks, GetText(attributes, "from"));
    MarkList(marks, GetText(attributes, "to"));
    return true;
}

bool MarkConnection(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkEnd(marks, attributes, "connection", "id1");
    MarkEnd(marks, attributes, "connection", "id2");
    return true;
}

bool MarkPersistentObjects(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkList(marks, GetText(attributes, "param_ids", GetText(attributes, "object_ids")));
    return true;
}

bool MarkExposedObjects(const SModelMarks& marks, const CNamedAttributes& attributes)
{
    MarkList(marks, GetText(attributes, "object_ids"));
    return true;
}

void RegisterModelMarks(CSkinParser& parser, ISkinModelExposure& exposure, CoreUtilities::IMessageLog& log)
{
    for (const SModelElement& element : modelElements)
    {
        RegisterStart(parser, element.name,
                      [&parser, &exposure, &log, mark = element.mark](const CNamedAttributes& attributes)
                      {
                          const char* name = parser.GetCurrentElementName();
                          return mark({exposure, log, name == nullptr ? "" : name}, attributes);
                      });
    }
    for (const char* name : {"COLLECTION", "FOREACH"})
    {
        RegisterStart(parser, name,
                      [&parser](const CNamedAttributes& attributes)
                      {
                          StartItemMarks(parser, attributes);
                          return true;
                      });
        RegisterEnd(parser, name,
                    [&parser]
                    {
                        EndItemMarks(parser);
                        return true;
                    });
    }
}

} // namespace Mirel::SkinEngine

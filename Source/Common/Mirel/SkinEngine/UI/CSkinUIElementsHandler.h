#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/SkinEngine/UI/ISkinRoot.h"
#include "Mirel/SkinEngine/UI/SSkinUIServices.h"

#include <memory>

namespace Mirel::SkinEngine
{

class CGUISkinData;
class CSkinModelContext;
class CSkinParser;
class ISkinModel;
struct SUIScope;

/// Builds the widgets of a skin file: registers a handler for each element of the skin dialect with a parser,
/// and makes widgets, layout cells and the objects that these expose. Widgets that name an object which does
/// not exist stand on a placeholder, until it comes.
///
/// A skin may have elements of models as well: what they build belongs to the skin, and is linked when all
/// its widgets are there.
///
/// Objects are exposed only if the model's exposure wants them. A pre-pass over the file marks what the file
/// itself refers to, and must run before the model is built, if that builds only what is wanted. GUI thread
/// only.
class CSkinUIElementsHandler
{
public:
    /// Nothing is owned. Parser, log and root must outlive the handler; what is built goes to the data, which
    /// may outlive all of them.
    CSkinUIElementsHandler(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
                           const SSkinUIServices& services_, ISkinRoot& root_);

    /// For an item of a collection, built without a file where the collection stands: whatever the parser is
    /// given up to EndItem becomes part of it.
    CSkinUIElementsHandler(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
                           const SSkinUIServices& services_, const SUIScope& scope,
                           const std::shared_ptr<CSkinModelContext>& context_);

    CSkinUIElementsHandler(const CSkinUIElementsHandler&) = delete;
    CSkinUIElementsHandler& operator=(const CSkinUIElementsHandler&) = delete;
    ~CSkinUIElementsHandler();

    /// Marks in the model's exposure what the file refers to, and builds nothing. False if the file has
    /// errors, which are in the log.
    bool PreParse(const char* path);

    /// Builds the skin. With usePrePass and no pre-pass done yet, runs one first and exposes what is marked;
    /// otherwise all that the file has. False if the file has errors, which are in the log; what was built
    /// stays.
    bool Parse(const char* path, bool usePrePass);

    /// A variable for the file. Kept for all passes.
    void SetVariable(const char* name, const char* value);

    /// The end of an item. False if something could not be linked.
    bool EndItem();

    /// What the bodies of collections inside an item hold: they are kept for each item.
    int GetElements() const;

private:
    class CImplementation;
    std::unique_ptr<CImplementation> implementation;
};

} // namespace Mirel::SkinEngine

#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/SkinEngine/Model/SSkinModelServices.h"

#include <memory>

namespace Mirel::SkinEngine
{

class CSkinModelContext;
class CSkinParser;
class ISkinModel;

/// Builds a model from a model file: registers a handler for each element of the model dialect with a parser,
/// creates the objects in the model and links them by identifier once the file is read.
///
/// What is not wanted is not built: each object is created only if the model's exposure wants it. A pre-pass
/// over the file marks what the file itself refers to. What the file's objects refer to beside one another
/// must be in the model before Parse. Used by the thread that builds the model.
class CSkinModelFactory
{
public:
    /// Nothing is owned. Parser and log must outlive the factory; the model may outlive all of them.
    CSkinModelFactory(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                      const SSkinModelServices& services_ = {});

    /// For an item of a collection: its objects enter the parent as well, whose exposure is asked and whose
    /// objects are linked.
    CSkinModelFactory(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                      ISkinModel& parent_, std::shared_ptr<CSkinModelContext> context_);

    CSkinModelFactory(const CSkinModelFactory&) = delete;
    CSkinModelFactory& operator=(const CSkinModelFactory&) = delete;
    ~CSkinModelFactory();

    /// Marks in the model's exposure what the file refers to, and builds nothing. False if the file has
    /// errors, which are in the log.
    bool PreParse(const char* path);

    /// Builds the model. With usePrePass and no pre-pass done yet, runs one first and builds what is marked;
    /// otherwise all that the file has. False if the file has errors, which are in the log; the model stays
    /// as far as it went.
    bool Parse(const char* path, bool usePrePass);

    /// A variable for the file. Kept for all passes.
    void SetVariable(const char* name, const char* value);

    /// Builds without a file, for an item of a collection: whatever the parser is given between the two
    /// becomes part of the model.
    bool StartModel(const Containers::CNamedAttributes& attributes);
    bool EndModel();

    /// What the bodies of collections inside an item hold: they are kept for each item.
    int GetElements() const;

private:
    class CImplementation;
    std::unique_ptr<CImplementation> implementation;
};

} // namespace Mirel::SkinEngine

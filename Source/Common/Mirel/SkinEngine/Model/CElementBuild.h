#pragma once

#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/SkinEngine/Model/ConnectCommands.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

class CSkinCollectionBase;
class CSkinParser;

/// What the handlers of elements work with in the pass that builds, be it of a model or of a skin: the model
/// that takes the objects, messages, and what is left to be done when all elements are there. Used by the
/// thread that builds.
class CElementBuild
{
public:
    CElementBuild(const CElementBuild&) = delete;
    CElementBuild& operator=(const CElementBuild&) = delete;

    CSkinParser& GetParser() const { return parser; }
    ISkinModel& GetModel() const { return model; }

    /// The model whose dictionary and exposure count: that around all items of collections.
    ISkinModel& GetWholeModel() const { return whole; }
    ISkinModelExposure& GetExposure() const { return whole.GetExposure(); }
    const std::shared_ptr<CSkinModelContext>& GetContext() const { return context; }

    /// Returns false, so that a handler can end with it.
    bool Fail(const std::string& message) const;
    void Warn(const std::string& message) const;
    void Inform(const char* message) const;

    // Remember objects that are to be persistent or exposed: those that an element's attributes want to be,
    // or several, with semicolons between their identifiers.
    void Note(const char* id, const Containers::CNamedAttributes& attributes);
    void NotePersistent(const char* ids) { persistentIds += std::string(";") + ids; }
    void NoteExposed(const char* ids) { exposedIds += std::string(";") + ids; }

    // What is to be done at the end: in this order, each list in its own.
    void QueuePreLink(std::unique_ptr<CModelCommand> command) { preLinks.push_back(std::move(command)); }
    void QueueCount(std::unique_ptr<CModelCommand> command) { counts.push_back(std::move(command)); }

    /// Hands an object that stands in no dictionary to the model.
    template <class T>
    T& Own(std::unique_ptr<T> object)
    {
        T& owned = *object;
        model.AddOwned(new Core::TDestroyAdapter<std::unique_ptr<T>>(std::move(object)));
        return owned;
    }

    /// One more element. False, with a report for the first, where there may be none.
    bool TakeElement();

    /// Charges what is kept for an item to what all collections may hold. False if that is too much.
    bool TakeElements(int count);
    int GetElements() const { return elements; }

    CSkinCollectionBase* openCollection = nullptr; ///< Between start and end of its element.

protected:
    using CCommands = std::vector<std::unique_ptr<CModelCommand>>;
    using CPublish = std::function<bool(const char* id)>;

    struct SElementLimit
    {
        int count;
        const char* message; ///< When there are more.
    };

    /// All must outlive the build.
    CElementBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                  ISkinModel& whole_, std::shared_ptr<CSkinModelContext> context_, SElementLimit limit_);
    ~CElementBuild() = default;

    /// Runs and destroys them, in order, all of them.
    static bool RunAll(CCommands& commands);
    bool RunPreLinks() { return RunAll(preLinks); }
    void RunCounts() { RunAll(counts); }

    /// Makes the remembered objects persistent and exposed, and reports where that is refused.
    void Publish(const CPublish& makePersistent, const CPublish& expose) const;

    /// Forgets what was to be done.
    void DropRest();

private:
    CSkinParser& parser;
    CoreUtilities::IMessageLog& log;
    ISkinModel& model;
    ISkinModel& whole;
    std::shared_ptr<CSkinModelContext> context;
    SElementLimit limit;
    int builtElements = 0;
    int elements = 0; ///< Charged.
    std::string persistentIds;
    std::string exposedIds;
    CCommands preLinks;
    CCommands counts;
};

} // namespace Mirel::SkinEngine

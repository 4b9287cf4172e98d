#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Mirel::SkinEngine
{

class CTemplateNode;
class IParserElementHandler;

/// An element of a running template: how far its children have come. The classes here belong to the thread
/// that replays.
class CParsedTemplateNodeInstance
{
public:
    explicit CParsedTemplateNodeInstance(const CTemplateNode& node_) : node(&node_) {}
    CParsedTemplateNodeInstance(const CParsedTemplateNodeInstance&) = delete;
    CParsedTemplateNodeInstance& operator=(const CParsedTemplateNodeInstance&) = delete;
    virtual ~CParsedTemplateNodeInstance() = default;

    const CTemplateNode& GetNode() const { return *node; }

    /// Each child once, in order; then null.
    const CTemplateNode* TakeNextChild();

    /// Whether the replay stops here for the content of the use.
    virtual bool IsHole() const { return false; }

private:
    const CTemplateNode* node;
    std::size_t nextChild = 0;
};

/// The hole. What is recorded inside it is not emitted.
class CParsedTemplateContentNodeInstance : public CParsedTemplateNodeInstance
{
public:
    using CParsedTemplateNodeInstance::CParsedTemplateNodeInstance;
    bool IsHole() const override { return true; }
};

/// A running template. It keeps its open elements in a list rather than on the stack, and can be taken step
/// by step: templates that use each other may be nested deeper than the stack of a host's thread.
class CParsedTemplateRootNodeInstance : public CParsedTemplateNodeInstance, public IParsedTemplateInstance
{
public:
    enum class EStep
    {
        Start,
        End,
        Hole,
        Finished
    };

    /// The handler is where Continue emits; null for a caller that takes the steps itself. Neither it nor the
    /// node is owned.
    CParsedTemplateRootNodeInstance(const CTemplateNode& root, const Containers::CNamedAttributes& use,
                                    IParserElementHandler* handler_);

    /// Goes on to the next element. With Start and End the element is the one given by GetElement; with Hole
    /// and Finished nothing is to be emitted.
    EStep Advance();

    /// The element of the last step; lives as long as the template.
    const CTemplateNode& GetElement() const { return *element; }

    /// Its attributes with the parameters put in. False if some were left out, being too long.
    bool MakeAttributes(Containers::CNamedAttributes& attributes) const;

    bool Continue() override;

private:
    Containers::CNamedAttributes parameters;
    IParserElementHandler* handler;
    std::vector<std::unique_ptr<CParsedTemplateNodeInstance>> open;
    const CTemplateNode* element = nullptr;
};

} // namespace Mirel::SkinEngine

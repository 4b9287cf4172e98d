#pragma once

#include "Mirel/SkinEngine/Language/CTemplateNode.h"
#include "Mirel/SkinEngine/Language/ParsedTemplateInstances.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Mirel::SkinEngine
{

/// The attributes of a REPEAT.
struct CRepeatRegisters
{
    int count = 0;
    int start = 0;
    std::string indexList; ///< Tokens between ";"; empty for a count.
    std::string indexName;
};

/// Gives the passes of a repeat, one after the other.
class CRepeatPasses
{
public:
    CRepeatPasses() = default;
    explicit CRepeatPasses(CRepeatRegisters registers_)
        : registers(std::move(registers_)),
          byList(!registers.indexList.empty())
    {
    }

    const std::string& GetIndexName() const { return registers.indexName; }

    /// The next pass's index as text; false after the last one.
    bool TakeNext(std::string& index);

private:
    CRepeatRegisters registers;
    bool byList = false;
    std::size_t listPosition = 0;
    std::int64_t passed = 0;
};

/// A template or a repeat that a parser is replaying. Where these are nested the parser keeps them in a list:
/// their depth costs no stack.
struct CExpansion
{
    enum class EKind
    {
        Use,          ///< From the start tag of a use to the template's end or its hole.
        Continuation, ///< From the end tag of a use, behind the hole.
        Repeat        ///< All passes.
    };

    EKind kind = EKind::Use;
    std::unique_ptr<CTemplateRootNode> body; ///< The repeat's own.
    CRepeatPasses passes;
    /// Between the passes of a repeat there is none.
    std::unique_ptr<CParsedTemplateRootNodeInstance> instance;
    std::optional<CTemplateRootNode::CRunningCount> running;
    /// The end of the element waits for the end of the expansion.
    bool closesElement = false;
};

} // namespace Mirel::SkinEngine

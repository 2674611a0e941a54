#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <memory>

namespace quillgrid {

/// Whoever still has to write the dates of a resolution into the rules.
class RuleSettler {
public:
    virtual ~RuleSettler() = default;
    virtual void SettleRules() = 0;
};

/// What a collection, its rules and the calendars that resolve them share. Most resolutions are overtaken by
/// the next before anyone reads a rule, so their dates are written only when a rule is read or changed.
struct QUILLGRID_EXPORT RuleLink {
    std::uint64_t Revision = 0;    ///< counts every change of a rule or of the collection
    std::uint64_t Resolutions = 0; ///< counts every resolution, whoever made it
    RuleSettler* Pending = nullptr;

    void Settle() {
        if (!Pending) return;
        RuleSettler* const settler = Pending;
        Pending = nullptr;
        settler->SettleRules();
    }
    void Change() {
        Settle();
        ++Revision;
    }
};
using RuleLinkReference = std::shared_ptr<RuleLink>;

} // namespace quillgrid

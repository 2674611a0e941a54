#pragma once

#include <cstdint>

namespace quillgrid::bench {

/// What the program has asked of the heap so far, the allocator's own headers included.
struct HeapUse {
    std::uint64_t Allocations = 0;
    std::int64_t Bytes = 0; ///< taken and not yet given back
};

HeapUse CurrentHeapUse();

} // namespace quillgrid::bench

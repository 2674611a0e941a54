#pragma once

/// Stands before what installed headers declare and a library defines. A shared library hides everything
/// else; in a static one it is empty, so that the compiler is as free there as with any other code.
#ifdef QUILLGRID_SHARED
#define QUILLGRID_EXPORT __attribute__((visibility("default")))
#else
#define QUILLGRID_EXPORT
#endif

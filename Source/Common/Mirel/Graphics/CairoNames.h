#pragma once

// Names of the drawing library, for headers that only point to its objects.
// NOLINTBEGIN(bugprone-reserved-identifier): the library chose them.
typedef struct _cairo cairo_t;                 // NOLINT(modernize-use-using): as in the library's header
typedef struct _cairo_surface cairo_surface_t; // NOLINT(modernize-use-using)
typedef struct _cairo_region cairo_region_t;   // NOLINT(modernize-use-using)
// NOLINTEND(bugprone-reserved-identifier)

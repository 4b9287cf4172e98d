#pragma once

// Names of the text libraries, for headers that only point to their objects.
// NOLINTBEGIN(bugprone-reserved-identifier): the libraries chose them.
typedef struct _FcConfig FcConfig;                         // NOLINT(modernize-use-using): as in their headers
typedef struct _PangoContext PangoContext;                 // NOLINT(modernize-use-using)
typedef struct _PangoFontDescription PangoFontDescription; // NOLINT(modernize-use-using)
typedef struct _PangoFontMap PangoFontMap;                 // NOLINT(modernize-use-using)
typedef struct _PangoLayout PangoLayout;                   // NOLINT(modernize-use-using)
// NOLINTEND(bugprone-reserved-identifier)

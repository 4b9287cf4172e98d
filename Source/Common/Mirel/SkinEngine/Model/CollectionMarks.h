#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

namespace Mirel::SkinEngine
{

class CSkinParser;

// How the body of a collection is marked, in either dialect, in the pass that builds nothing.

/// At the start of the collection: records its body.
void StartItemMarks(CSkinParser& parser, const Containers::CNamedAttributes& collection);

/// At its end: replays the body as it stands for all items, so that what these refer to is marked.
void EndItemMarks(CSkinParser& parser);

/// After a parse: a file that breaks off inside a collection leaves its recording behind.
void DropItemMarks(CSkinParser& parser);

} // namespace Mirel::SkinEngine

#pragma once

#include "Mirel/GUI/CWidget.h"

namespace Mirel::GUI
{

/// A plain container that keeps one native child apart from its siblings in a layer stack: it draws nothing
/// and lets the pointer through where the child does not stand. GUI thread only.
class CIsolationWidget : public CWidget
{
public:
    bool HitTest(CPoint /*point*/) const override { return false; }
};

} // namespace Mirel::GUI

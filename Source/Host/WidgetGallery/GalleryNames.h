#pragma once

namespace Mirel::Core
{
}
namespace Mirel::DataModel
{
}
namespace Mirel::GUI
{
}
namespace Mirel::Graphics
{
}
namespace Mirel::Layout
{
}

/// The gallery shows all of the toolkit and names it shortly.
namespace WidgetGallery
{

namespace Core = Mirel::Core;
namespace DataModel = Mirel::DataModel;
namespace Graphics = Mirel::Graphics;
namespace GUI = Mirel::GUI;
namespace Layout = Mirel::Layout;

} // namespace WidgetGallery

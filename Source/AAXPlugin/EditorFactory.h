#pragma once

namespace Mirel::Audio::Plugin
{
class CAudioPluginInternalsBase;
} // namespace Mirel::Audio::Plugin

namespace MirelExt::AAXPlugin
{

/// Has the instance's editor holder make the editor of this product. Before the editor is opened.
void SetEditorFactory(Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals);

} // namespace MirelExt::AAXPlugin

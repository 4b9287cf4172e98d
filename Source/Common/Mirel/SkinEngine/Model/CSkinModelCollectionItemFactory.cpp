#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CTemplateNode.h"
#include "Mirel/SkinEngine/Language/IElementListener.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"
#include "Mirel/SkinEngine/Model/CDictionaryLogExchange.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

/// Charges the elements of an item to what all collections may hold.
class CElementCharge : public IElementListener
{
public:
    explicit CElementCharge(CSkinCollectionContext& context_) : context(context_) {}

    void OnElementStart(const char*, const Containers::CNamedAttributes&) override
    {
        if (context.TakeElements(1))
        {
            ++count;
        }
    }
    void OnElementEnd(const char*) override {}

    int GetCount() const { return count; }

private:
    CSkinCollectionContext& context;
    int count = 0;
};

/// No recursion: how deep a body is nested is for its file to say.
int CountNodes(const CTemplateNode& root)
{
    int count = 0;
    std::vector<const CTemplateNode*> pending{&root};
    while (!pending.empty())
    {
        const CTemplateNode& node = *pending.back();
        pending.pop_back();
        for (const auto& child : node.GetChildren())
        {
            pending.push_back(child.get());
            ++count;
        }
    }
    return count;
}

} // namespace

CSkinModelCollectionItemFactory::CSkinModelCollectionItemFactory(std::unique_ptr<IParsedTemplate> body_,
                                                                 const CSkinParser& parser,
                                                                 ISkinModel& parent_,
                                                                 std::shared_ptr<CSkinModelContext> context_)
    : body(std::move(body_)),
      dataFolder(parser.GetDataFolder() == nullptr ? "" : parser.GetDataFolder()),
      parent(parent_),
      context(std::move(context_))
{
    parser.GetPublicState().Serialize(parserState);
}

void CSkinModelCollectionItemFactory::CreateItem(int, const Containers::CNamedAttributes& attributes)
{
    items.push_back(std::make_unique<CSkinModelCollectionItem>(parent, context->GetCollections()));
    Fill(*items.back(), attributes);
}

void CSkinModelCollectionItemFactory::DestroyItem(int index)
{
    items[static_cast<std::size_t>(index)].reset();
}

ISkinCollectionItem* CSkinModelCollectionItemFactory::GetItem(int index) const
{
    return index >= 0 && index < GetCount() ? items[static_cast<std::size_t>(index)].get() : nullptr;
}

void CSkinModelCollectionItemFactory::Commit(int delta)
{
    if (delta < 0)
    {
        items.resize(items.size() - static_cast<std::size_t>(-delta));
    }
}

void CSkinModelCollectionItemFactory::Fill(CSkinModelCollectionItem& item,
                                           const Containers::CNamedAttributes& attributes)
{
    CoreUtilities::CMemMessageLog log;
    const CDictionaryLogExchange parentLog(parent.GetObjects(), &log);
    const CDictionaryLogExchange itemLog(item.GetModel().GetObjects(), &log);
    CSkinParser parser(log);
    parser.GetPublicState().Deserialize(parserState);
    parser.SetDataFolder(dataFolder.c_str());
    CElementCharge charge(*context->GetCollections());
    parser.SetElementListener(&charge);
    CSkinModelFactory factory(parser, log, item.GetModel(), parent, context);
    factory.StartModel({});
    delete body->Instantiate(attributes, parser);
    factory.EndModel();
    // An element may stand for several objects; they are there already, and count for the items to come.
    const int objects = item.GetModel().GetObjects().GetCount();
    context->GetCollections()->AddElements(objects);
    item.SetElements(charge.GetCount() + factory.GetElements() + objects);
}

int CountElements(const IParsedTemplate& body)
{
    const auto* root = dynamic_cast<const CTemplateNode*>(&body);
    return root == nullptr ? 0 : CountNodes(*root);
}

} // namespace Mirel::SkinEngine

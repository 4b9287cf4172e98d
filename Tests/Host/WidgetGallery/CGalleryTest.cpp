#include "Host/WidgetGallery/CGallery.h"
#include "Host/WidgetGallery/Snapshot.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Mirel;

namespace
{

const GUI::CPopupLook& TestLook()
{
    static Graphics::CFontManager fonts("");
    static const GUI::CPopupLook look = GUI::MakePopupLook(fonts);
    return look;
}

class CGalleryTest : public testing::Test
{
public:
    GUI::COffscreenWindow& Native() { return *platform.GetWindow(0); }

    GUI::CNativeRunLoop loop;
    GUI::COffscreenPlatform platform{loop};
};

TEST_F(CGalleryTest, SnapshotIsAPictureOfEverythingAtItsScale)
{
    const Tests::CTemporaryFolder folder;
    constexpr std::int64_t manyPixels = 100'000'000;
    for (const int scale : {1, 2})
    {
        const std::string path = folder.GetPath("gallery.png");
        ASSERT_TRUE(WidgetGallery::WriteSnapshot(path, scale, TestLook()));
        const Graphics::CSharedImage image = Graphics::ReadImageFile(path.c_str(), manyPixels);
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->GetSize().width, WidgetGallery::CGalleryPage::width * scale);
        EXPECT_GT(image->GetSize().height, 2000 * scale);
    }
}

TEST_F(CGalleryTest, SnapshotThatCannotBeWrittenFails)
{
    EXPECT_FALSE(WidgetGallery::WriteSnapshot("/nowhere/gallery.png", 1, TestLook()));
}

TEST_F(CGalleryTest, WheelScrollsThePageWithinItsEnds)
{
    WidgetGallery::CGallery gallery(platform, TestLook(), false);
    gallery.GetWindow().Show(true);
    platform.Pump();
    Native().TakePresented();
    platform.MovePointer(Native().GetPosition());
    platform.MovePointer({Native().GetPosition().x + 5, Native().GetPosition().y + 5});
    platform.TurnWheel(1.0);
    EXPECT_FALSE(platform.Pump()) << "it begins at the top";
    platform.TurnWheel(-3.0);
    EXPECT_TRUE(platform.Pump());
    platform.TurnWheel(-1000.0);
    platform.Pump();
    platform.TurnWheel(-1.0);
    EXPECT_FALSE(platform.Pump()) << "and ends at the bottom";
}

TEST_F(CGalleryTest, ClosingTheWindowEndsTheRun)
{
    WidgetGallery::CGallery gallery(platform, TestLook(), false);
    loop.Post([this] { platform.AskToClose(); });
    gallery.Run();
    EXPECT_FALSE(gallery.GetWindow().IsShown());
}

TEST_F(CGalleryTest, EverythingOpensAndGoesWithTheGallery)
{
    {
        WidgetGallery::CGallery gallery(platform, TestLook(), true);
        gallery.GetWindow().Show(true);
        gallery.GetPopups().OpenMenu({10, 10});
        gallery.GetPopups().ShowTooltip({10, 10}, true);
        gallery.GetPopups().ShowAlert(GUI::EMessageKind::Warning, GUI::EMessageButtons::YesNo);
        gallery.GetPopups().ChooseFile("/", true);
        gallery.GetPopups().OpenFineEdit({10, 10});
        platform.Pump();
        EXPECT_EQ(platform.GetWindowCount(), 6);
        EXPECT_TRUE(gallery.GetWindow().IsInputBlocked());
    }
    EXPECT_EQ(platform.GetWindowCount(), 0);
}

} // namespace

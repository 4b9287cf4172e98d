#include "ManualPdf/ManualPdfProgram.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

namespace
{

struct ManualPdfTest : testing::Test
{
    int Run(std::initializer_list<std::string> arguments)
    {
        std::vector<const char*> line = {"manual-pdf"};
        for (const std::string& argument : arguments)
        {
            line.push_back(argument.c_str());
        }
        return ManualPdf::RunProgram(static_cast<int>(line.size()), line.data(), out, errors);
    }

    Tests::CTemporaryFolder folder;
    std::ostringstream out;
    std::ostringstream errors;
};

} // namespace

TEST_F(ManualPdfTest, SetsTheProductsManual)
{
    ASSERT_EQ(Run({MANUAL_FOLDER "/manual.md", folder.GetPath("manual.pdf")}), 0) << errors.str();
    const std::string document = folder.Read("manual.pdf");
    EXPECT_TRUE(document.starts_with("%PDF-"));
    EXPECT_GT(document.size(), 20000U);
}

TEST_F(ManualPdfTest, TheSameTextGivesTheSameFile)
{
    folder.Write("a.md", "# A\n\ntext\n\n| a | b |\n|---|---|\n| c | d |\n");
    ASSERT_EQ(Run({folder.GetPath("a.md"), folder.GetPath("1.pdf")}), 0);
    ASSERT_EQ(Run({folder.GetPath("a.md"), folder.GetPath("2.pdf")}), 0);
    EXPECT_EQ(folder.Read("1.pdf"), folder.Read("2.pdf"));
}

TEST_F(ManualPdfTest, AMissingPictureIsReported)
{
    folder.Write("a.md", "![A](none.png)\n");
    EXPECT_EQ(Run({folder.GetPath("a.md"), folder.GetPath("a.pdf")}), 1);
    EXPECT_EQ(errors.str(), "manual-pdf: cannot read the picture none.png\n");
}

TEST_F(ManualPdfTest, AMissingTextIsReported)
{
    EXPECT_EQ(Run({folder.GetPath("none.md"), folder.GetPath("a.pdf")}), 1);
    EXPECT_NE(errors.str().find("cannot read"), std::string::npos);
}

TEST_F(ManualPdfTest, AFileThatCannotBeWrittenIsReported)
{
    folder.Write("a.md", "text\n");
    EXPECT_EQ(Run({folder.GetPath("a.md"), "/dev/null/a.pdf"}), 1);
    EXPECT_NE(errors.str().find("cannot write"), std::string::npos);
}

TEST_F(ManualPdfTest, ALineWithoutATargetIsWrong)
{
    EXPECT_EQ(Run({"a.md"}), 2);
}

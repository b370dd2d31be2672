#include "support/files/ScratchFolder.h"
#include <FontFolders.h>

#include <gtest/gtest.h>

namespace
{

TEST (FontFolders, AreThoseOfTheFontsThatWeDrawIn)
{
    const ScratchFolder scratch;
    for (const char* file : { "dejavu/DejaVuSans.ttf", "dejavu/DejaVuSans-Bold.ttf", "core/deep/Verdana_Bold.TTF",
                              "lib/LiberationSans-Regular.ttf", "other/Bookman.otf", "other/Sans.ttf",
                              "docs/verdana.txt", "docs/arial.ttf.gz", "none/" }) {
        std::filesystem::create_directories ((scratch / file).parent_path());
        scratch.write (file, "");
    }
    const auto root = (scratch / "").string();
    EXPECT_EQ (foldersOfOurFonts ({ root + "nowhere", root }), root + "core/deep;" + root + "dejavu;" + root + "lib;");
    EXPECT_EQ (foldersOfOurFonts ({ root + "other", root + "docs", "" }), "") << "JUCE looks everywhere then";
}

TEST (FontFolders, OfTheUserComeFirst)
{
    ASSERT_EQ (setenv ("FOLDERS_OF_A_USER", "/mine", 1), 0);
    EXPECT_STREQ (fontFoldersFor ("FOLDERS_OF_A_USER"), "/mine");
}

}

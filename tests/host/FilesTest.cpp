#include "host/bench/Bench.h"
#include "support/files/ScratchFolder.h"
#include <cstring>
#include <gmock/gmock.h>

namespace
{
class BenchFiles : public testing::Test
{
protected:
    BenchFiles() { folder.write ("there.json", "{}"); }

    bench::Bench patch;
    ScratchFolder folder;
    char name[MAX_PATH_CHARS] = "file.json";
    char whole[MAX_PATH_CHARS] = {};
    std::int16_t path = 0;
    t_fourcc type = 0;
};

TEST_F (BenchFiles, DialogsGiveTheAnswersInTurnAndAreCancelledWithoutOne)
{
    patch.answerDialog ((folder / "there.json").string());
    patch.answerDialog (std::nullopt);
    EXPECT_EQ (open_dialog (name, &path, &type, nullptr, 0), 0);
    EXPECT_STREQ (name, "there.json");
    EXPECT_EQ (type, 0x4A534F4Eu);
    EXPECT_EQ (path_topathname (path, name, whole), 0);
    EXPECT_EQ (whole, (folder / "there.json").generic_string());
    EXPECT_NE (saveasdialog_extended (name, &path, &type, nullptr, 0), 0);
    EXPECT_NE (open_dialog (name, &path, &type, nullptr, 0), 0);
}

TEST_F (BenchFiles, AFileToBeSavedHasAPathThoughItIsNotThere)
{
    patch.answerDialog ((folder / "new.xml").string());
    ASSERT_EQ (saveasdialog_extended (name, &path, &type, nullptr, 0), 0);
    EXPECT_NE (path_topathname (path, name, whole), 0);
    EXPECT_EQ (path_topotentialname (path, name, whole, 1), 0);
    EXPECT_EQ (whole, (folder / "new.xml").generic_string());
}

TEST_F (BenchFiles, AreLocatedByNameAndByType)
{
    const auto there = (folder / "there.json").string();
    const t_fourcc json = 0x4A534F4E;
    const t_fourcc text = 0x54455854;
    strncpy_zero (name, there.c_str(), MAX_PATH_CHARS);
    EXPECT_NE (locatefile_extended (name, &path, &type, &text, 1), 0);
    EXPECT_EQ (locatefile_extended (name, &path, &type, &json, 1), 0);
    EXPECT_STREQ (name, "there.json");
    strncpy_zero (name, "nowhere.json", MAX_PATH_CHARS);
    EXPECT_NE (locatefile_extended (name, &path, &type, nullptr, 0), 0);
}

TEST_F (BenchFiles, PathsTakeAStyle)
{
    ASSERT_EQ (path_nameconform ("C:\\a\\b.txt", whole, PATH_STYLE_SLASH, PATH_TYPE_IGNORE), 0);
    EXPECT_STREQ (whole, "C:/a/b.txt");
    ASSERT_EQ (path_nameconform ("C:/a/b.txt", whole, PATH_STYLE_NATIVE_WIN, PATH_TYPE_IGNORE), 0);
    EXPECT_STREQ (whole, "C:\\a\\b.txt");
    const std::string tooLong (MAX_PATH_CHARS, 'x');
    EXPECT_NE (path_nameconform (tooLong.c_str(), whole, PATH_STYLE_MAX, PATH_TYPE_IGNORE), 0);
    EXPECT_STREQ (whole, "C:\\a\\b.txt");
}
}

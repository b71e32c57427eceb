#include <gtest/gtest.h>

#include "core/image/ImageWriter.h"
#include "session/Overlays.h"
#include "session/SaveTarget.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

TEST(SaveTarget, TheFirstExtensionTellsTheTypeWhereverItStands) {
    const struct {
        const char *path, *picture;
        int type;
    } cases[] = {{"/a/anna.jpg", "/a/anna.jpg", kJpegFile},
                 {"/a/anna.JPEG", "/a/anna.jpg", kJpegFile},
                 {"/a/anna.Tiff", "/a/anna.tif", kTiffFile},
                 {"/a/anna.png", "/a/anna.png", kPngFile},
                 {"/a/anna.nef", "/a/anna.nef.jpg", kJpegFile},
                 {"/a/anna", "/a/anna.jpg", kJpegFile},
                 {"/a/anna.jpg.tif", "/a/anna.jpg.tif", kTiffFile},
                 {"/a/set.png/anna.jpg", "/a/set.png", kPngFile},
                 {"/a/old.tif-scans/anna.png", "/a/old.tif", kTiffFile},
                 {".png", ".png.png", kPngFile}};
    for (const auto& [path, picture, type] : cases) {
        EXPECT_EQ(saveTargetOf(path).picture(), picture) << path;
        EXPECT_EQ(saveTargetOf(path).type, type) << path;
    }
    EXPECT_EQ(saveTargetOf("/a/anna.jpeg").state(), "/a/anna.qlx");
}

TEST(Overlays, ASetIsFoundByWhatItsNamesHaveInCommon) {
    const test::TempFolder folder;
    std::filesystem::create_directories(folder.file("deep/FG_Winter.png"));  // a folder of that name
    std::filesystem::create_directories(folder.file("other"));
    for (const char* file : {"FR_Winter.png", "deep/bg_winter.PNG", "other/BG_Winter.jpg", "XX_Winter.png",
                             "FR_Party.png", "other/FG_Early Winter.png"})
        test::writeFile(folder.file(file), "picture");
    EXPECT_EQ(automaticNameOf("/x/FR_Winter.png"), "WINTER.PNG");
    const OverlaySet set = searchFolder(folder.file(""), "WINTER.PNG");
    EXPECT_EQ(set.frame, folder.file("FR_Winter.png"));
    EXPECT_EQ(set.background, folder.file("deep/bg_winter.PNG"));
    EXPECT_EQ(set.foreground, folder.file("other/FG_Early Winter.png")) << "only the end of the name is compared";
    EXPECT_EQ(searchFolder(folder.file("gone"), "WINTER.PNG").frame, "");
    EXPECT_EQ(searchFolder(folder.file(""), "").frame, "");
}

}  // namespace
}  // namespace tavrin

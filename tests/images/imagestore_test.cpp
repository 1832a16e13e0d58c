// The image stores that keep decoded textures for the texture window, and the lookup of the
// texture files a model names.
#include "imagepath.h"
#include "imagestore.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

TEST(ImageStore, IsWhiteWhenEmptyAndTellsEachPixelOfItsPicture) {
    ImageStore store;
    EXPECT_FALSE(store.HasPicture());
    EXPECT_EQ(std::make_pair(store.Width(), store.Height()), std::make_pair(1, 1));
    EXPECT_EQ(store.Point(0, 0), kWhite);

    PcxImage picture;
    picture.width = 2;
    picture.height = 2;
    picture.rgb = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    store.SetPicture(picture);
    EXPECT_TRUE(store.HasPicture());
    EXPECT_EQ(std::make_pair(store.Width(), store.Height()), std::make_pair(2, 2));
    EXPECT_EQ(store.Point(1, 0), 0x060504u);
    EXPECT_EQ(store.Point(0, 1), 0x090807u);
    EXPECT_EQ(std::make_pair(store.Point(2, 0), store.Point(0, -1)),
              std::make_pair(kNoPixel, kNoPixel));

    picture.rgb.pop_back();
    store.SetPicture(picture);
    EXPECT_FALSE(store.HasPicture());
    EXPECT_EQ(store.Point(0, 0), kWhite);

    EXPECT_TRUE(Texture(0) != nullptr && Texture(kThreeViewSlot) != nullptr);
    EXPECT_TRUE(Texture(-1) == nullptr && Texture(kImageStoreCount) == nullptr);
}

TEST(ImagePath, FindsAnUpperCasedNameWithWindowsSeparatorsAndTrailingBlanks) {
    TempDir folder;
    std::filesystem::create_directory(folder.path() / "Models");
    const std::string file = (folder.path() / "Models" / "plane.pcx").string();
    std::ofstream(file) << "x";

    std::string named = folder.path().string() + "\\MODELS\\PLANE.PCX";
    for (char& c : named)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    named += std::string(" \0\0", 3);
    EXPECT_EQ(ResolveImagePath(named), file);
    EXPECT_EQ(ResolveImagePath(file), file);
    for (const std::string& none :
         {folder.file("Models/other.pcx"), folder.file("Models"), std::string()})
        EXPECT_EQ(ResolveImagePath(none), "") << none;
}

} // namespace

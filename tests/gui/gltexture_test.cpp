// Textures made from PCX files, read back from GL: the pixels bottom-up, white for files that give
// no picture, and the uploads that wait until a GL context is current.
#include "bytefile.h"
#include "editorfixture.h"
#include "gltexture.h"
#include "gltextureloader.h"
#include "glview.h"
#include "model.h"
#include "oglgraphics.h"
#include "pcxreader.h"
#include "pcxwriter.h"
#include "programstate.h"
#include "tempdir.h"
#include "testpictures.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <tuple>

namespace {

using Bytes = std::vector<uint8_t>;

// A texture's width, height and rows, bottom-up as GL keeps them.
using GLPicture = std::tuple<int, int, Bytes>;

GLPicture ReadTexture(int32_t name) {
    GLint width = 0;
    GLint height = 0;
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(name));
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &height);
    Bytes rgb(static_cast<std::size_t>(width * height * 3));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_BYTE, rgb.data());
    return {width, height, rgb};
}

Bytes BottomUp(const PcxImage& picture) {
    Bytes rgb;
    for (int y = picture.height - 1; y >= 0; --y) {
        const auto row = picture.rgb.begin() + static_cast<std::ptrdiff_t>(picture.RowBytes()) * y;
        rgb.insert(rgb.end(), row, row + static_cast<std::ptrdiff_t>(picture.RowBytes()));
    }
    return rgb;
}

} // namespace

TEST_F(EditorTest,
       TexturesAreUploadedBottomUpUnderNewNamesWhiteWithoutAPictureAndLaterWithoutAContext) {
    ASSERT_TRUE(OGL().MakeCurrent());
    TempDir folder;
    // Odd widths: the 256-colour texture is as wide as its rows (6), the true-colour one 7 wide.
    WriteFileBytes(folder.file("wing.pcx"), EncodePcx8(5, 3, TestIndices(5, 3, 8), TestPalette()));
    WriteFileBytes(folder.file("tail.pcx"), EncodePcx24(7, 4, TestRgb(7, 4, 8)));
    Bytes deep = EncodePcx8(4, 4, TestIndices(4, 4, 1), TestPalette());
    deep[3] = 4;
    WriteFileBytes(folder.file("deep.pcx"), deep);

    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    std::vector<int32_t> names;
    for (const char* file : {"wing.pcx", "tail.pcx", "wing.pcx", "deep.pcx", "missing.pcx"}) {
        SCOPED_TRACE(file);
        const std::string path = folder.file(file);
        int32_t name = 0;
        ASSERT_TRUE(LoadGLTexture(path, name, 2));
        names.push_back(name);
        const std::optional<PcxImage> decoded = ReadPcx(path).picture;
        // The picture stays in the store for the texture window.
        EXPECT_EQ(Texture(2)->HasPicture() ? Texture(2)->Pixels() : Bytes{},
                  decoded ? decoded->rgb : Bytes{});
        const GLPicture expected =
            decoded ? GLPicture{decoded->width, decoded->height, BottomUp(*decoded)}
                    : GLPicture{1, 1, {255, 255, 255}};
        EXPECT_EQ(ReadTexture(name), expected);
        GLint alignment = 0;
        glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
        EXPECT_EQ(alignment, 4);
    }
    // Every load has its own name; the earlier ones are kept.
    EXPECT_NE(names[0], names[2]);
    EXPECT_EQ(ReadTexture(names[0]), ReadTexture(names[2]));
    EXPECT_EQ(host.messages,
              std::vector<std::string>{"Sorry, can't load " + folder.file("deep.pcx") + "!"});
    int32_t name = 0;
    EXPECT_FALSE(LoadGLTexture(folder.file("deep.pcx"), name, kImageStoreCount));

    // Without a current context a picture waits in its store until the view flushes it to the
    // field it was loaded for. Two drawings pass through the shared 3-view store, each on its way
    // to its own field.
    const float granularity = textures.PointSizeGranularity();
    EXPECT_GT(granularity, 0.0f);
    model aircraft;
    aircraft.Files.resize(kFileSlots);
    ProjectRecord& project = Program().ProjectData;
    Surface().doneCurrent();
    EXPECT_EQ(textures.PointSizeGranularity(), granularity);
    ASSERT_TRUE(CurrentTextureLoader()->LoadGLTexture(folder.file("tail.pcx"),
                                                      aircraft.Files[1].TextureID, 1));
    EXPECT_EQ(aircraft.Files[1].TextureID, 0);
    EXPECT_TRUE(Texture(1)->HasPicture());
    EXPECT_TRUE(HasPendingTextures());
    ASSERT_TRUE(LoadGLTexture(folder.file("wing.pcx"), project.TopImage, kThreeViewSlot));
    ASSERT_TRUE(LoadGLTexture(folder.file("tail.pcx"), project.LeftImage, kThreeViewSlot));

    ASSERT_TRUE(OGL().MakeCurrent());
    FlushPendingTextures(aircraft);
    EXPECT_FALSE(HasPendingTextures());
    ASSERT_NE(aircraft.Files[1].TextureID, 0);
    EXPECT_EQ(ReadTexture(aircraft.Files[1].TextureID), ReadTexture(names[1]));
    EXPECT_EQ(ReadTexture(project.TopImage), ReadTexture(names[0]));
    EXPECT_EQ(ReadTexture(project.LeftImage), ReadTexture(names[1]));
    EXPECT_EQ(aircraft.Files[kThreeViewSlot].TextureID, 0);
}

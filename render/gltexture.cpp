#include "gltexture.h"

#include "model.h"
#include "pcxreader.h"

#include <QOpenGLContext>

#include <GL/gl.h>

#include <cstring>
#include <set>

namespace {

// The slots whose picture was loaded while no GL context was current.
std::set<int> pendingSlots;

// The store's rows turned bottom-up, which is how glTexImage2D takes them and what the map
// coordinates of the polygons expect.
std::vector<uint8_t> BottomUpRows(const ImageStore& store) {
    const std::size_t rowBytes = static_cast<std::size_t>(store.Width()) * kRgbBytes;
    const std::size_t height = static_cast<std::size_t>(store.Height());
    const std::vector<uint8_t>& topDown = store.Pixels();
    std::vector<uint8_t> bottomUp(rowBytes * height);
    for (std::size_t row = 0; row < height; ++row)
        std::memcpy(bottomUp.data() + row * rowBytes,
                    topDown.data() + (height - 1 - row) * rowBytes, rowBytes);
    return bottomUp;
}

} // namespace

bool LoadGLTexture(const std::string& texturename, int32_t& Texture, int ID) {
    ImageStore* store = ::Texture(ID);
    if (store == nullptr)
        return false;
    store->Clear();
    if (std::optional<PcxImage> picture = LoadPCX(texturename))
        store->SetPicture(std::move(*picture));

    if (!GLContextIsCurrent()) {
        pendingSlots.insert(ID);
        Texture = 0;
        return true;
    }
    pendingSlots.erase(ID);
    Texture = static_cast<int32_t>(UploadImageStore(*store));
    return true;
}

uint32_t UploadImageStore(const ImageStore& store) {
    const std::vector<uint8_t> pixels = BottomUpRows(store);
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);

    // Rows of odd widths are not padded to four bytes.
    GLint unpackAlignment = 4;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &unpackAlignment);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, store.Width(), store.Height(), 0, GL_RGB,
                 GL_UNSIGNED_BYTE, pixels.data());
    glPixelStorei(GL_UNPACK_ALIGNMENT, unpackAlignment);

    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    return name;
}

bool GLContextIsCurrent() {
    return QOpenGLContext::currentContext() != nullptr;
}

bool HasPendingTextures() {
    return !pendingSlots.empty();
}

void FlushPendingTextures(const std::function<void(int slot, int32_t name)>& deliver) {
    const std::set<int> waiting = std::move(pendingSlots);
    pendingSlots.clear();
    for (const int slot : waiting)
        deliver(slot, static_cast<int32_t>(UploadImageStore(*::Texture(slot))));
}

void FlushPendingTextures(model& m) {
    FlushPendingTextures([&m](int slot, int32_t name) {
        if (slot < static_cast<int>(m.Files.size()))
            m.Files[static_cast<std::size_t>(slot)].TextureID = name;
    });
}

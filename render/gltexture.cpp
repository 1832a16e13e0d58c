#include "gltexture.h"

#include "model.h"
#include "pcxreader.h"
#include "programstate.h"

#include <QOpenGLContext>

#include <GL/gl.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

using ImageField = int32_t ProjectRecord::*;

constexpr ImageField kProjectImageFields[] = {
    &ProjectRecord::LeftImage,   &ProjectRecord::TopImage,   &ProjectRecord::FrontImage,
    &ProjectRecord::BottomImage, &ProjectRecord::RightImage, &ProjectRecord::BackImage,
};

// A picture loaded while no GL context was current, with its own copy of the pixels (the 3-view
// slot is shared, so the next drawing replaces the store before the upload), and where its
// texture name goes: a view image field of the project, or else the file of its slot.
struct PendingUpload {
    int slot = 0;
    ImageField field = nullptr;
    ImageStore picture;
};

std::vector<PendingUpload> pendingUploads;

// The project's view image field that `Texture` is, or nullptr.
ImageField ProjectImageField(const int32_t& Texture) {
    ProjectRecord& project = Program().ProjectData;
    for (const ImageField field : kProjectImageFields) {
        if (&(project.*field) == &Texture)
            return field;
    }
    return nullptr;
}

// Drops the upload that waits for the same place: a later load of it wins.
void ForgetPendingUpload(int slot, ImageField field) {
    pendingUploads.erase(std::remove_if(pendingUploads.begin(), pendingUploads.end(),
                                        [&](const PendingUpload& upload) {
                                            return upload.slot == slot && upload.field == field;
                                        }),
                         pendingUploads.end());
}

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

    const ImageField field = ProjectImageField(Texture);
    ForgetPendingUpload(ID, field);
    if (!GLContextIsCurrent()) {
        pendingUploads.push_back({ID, field, *store});
        Texture = 0;
        return true;
    }
    Texture = static_cast<int32_t>(UploadImageStore(*store));
    return true;
}

uint32_t UploadImageStore(const ImageStore& store) {
    std::vector<uint8_t> pixels;
    try {
        pixels = BottomUpRows(store);
    } catch (const std::bad_alloc&) {
        // Without memory for the turned rows there is no texture; the model stays usable.
        return 0;
    }
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
    return !pendingUploads.empty();
}

void FlushPendingTextures(model& m) {
    const std::vector<PendingUpload> waiting = std::move(pendingUploads);
    pendingUploads.clear();
    for (const PendingUpload& upload : waiting) {
        const auto name = static_cast<int32_t>(UploadImageStore(upload.picture));
        if (upload.field != nullptr)
            Program().ProjectData.*upload.field = name;
        else if (upload.slot < static_cast<int>(m.Files.size()))
            m.Files[static_cast<std::size_t>(upload.slot)].TextureID = name;
    }
}

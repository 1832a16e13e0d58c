// The hook through which the reader hands a model's texture to the GL side. Programs without a
// GL view (moxtool, the model tests) leave it empty, and no texture is loaded.
#pragma once

#include <cstdint>
#include <string>

class TextureLoader {
public:
    virtual ~TextureLoader() = default;
    // Loads the image at `path` into image store `slot` and a new GL texture whose name goes to
    // `textureId`. Returns false when the file is not a usable picture at all.
    virtual bool LoadGLTexture(const std::string& path, int32_t& textureId, int slot) = 0;
    // The unit of all point sizes: GL_POINT_SIZE_GRANULARITY.
    virtual float PointSizeGranularity() = 0;
};

// The current hook, or nullptr.
TextureLoader* CurrentTextureLoader();
void SetTextureLoader(TextureLoader* loader);

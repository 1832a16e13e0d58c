// The GL side of the reader's texture hook: set it with SetTextureLoader once the program starts.
#pragma once

#include "textureloader.h"

class GLTextureLoader final : public TextureLoader {
public:
    // LoadGLTexture of the image stores (see gltexture.h), including its wait for a GL context.
    bool LoadGLTexture(const std::string& path, int32_t& textureId, int slot) override;
    // GL_POINT_SIZE_GRANULARITY of the current context; without one, the last value read, and 1
    // before any.
    float PointSizeGranularity() override;

private:
    float granularity_ = 1.0f;
};

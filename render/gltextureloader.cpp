#include "gltextureloader.h"

#include "gltexture.h"

#include <GL/gl.h>

bool GLTextureLoader::LoadGLTexture(const std::string& path, int32_t& textureId, int slot) {
    return ::LoadGLTexture(path, textureId, slot);
}

float GLTextureLoader::PointSizeGranularity() {
    if (GLContextIsCurrent()) {
        GLfloat value = 0.0f;
        glGetFloatv(GL_POINT_SIZE_GRANULARITY, &value);
        if (value > 0.0f)
            granularity_ = value;
    }
    return granularity_;
}

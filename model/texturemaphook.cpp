#include "texturemaphook.h"

#include <utility>

namespace {
TextureMapDrawer textureMapDrawer;
}

void SetTextureMapDrawer(TextureMapDrawer drawer) {
    textureMapDrawer = std::move(drawer);
}

void DrawTextureMap(const model& current) {
    if (textureMapDrawer)
        textureMapDrawer(current);
}

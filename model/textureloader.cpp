#include "textureloader.h"

namespace {
TextureLoader* currentLoader = nullptr;
}

TextureLoader* CurrentTextureLoader() {
    return currentLoader;
}

void SetTextureLoader(TextureLoader* loader) {
    currentLoader = loader;
}

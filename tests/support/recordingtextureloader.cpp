#include "recordingtextureloader.h"

RecordingTextureLoader::RecordingTextureLoader() {
    SetTextureLoader(this);
}

RecordingTextureLoader::~RecordingTextureLoader() {
    SetTextureLoader(nullptr);
}

bool RecordingTextureLoader::LoadGLTexture(const std::string& path, int32_t& textureId, int slot) {
    requests.push_back({path, slot});
    if (answer)
        textureId = nextTextureId++;
    return answer;
}

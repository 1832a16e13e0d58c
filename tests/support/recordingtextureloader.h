// A texture hook for tests: records every path it is asked to load and answers as told. It
// puts itself in place for its lifetime.
#pragma once

#include "textureloader.h"

#include <string>
#include <vector>

class RecordingTextureLoader : public TextureLoader {
public:
    RecordingTextureLoader();
    ~RecordingTextureLoader() override;

    bool LoadGLTexture(const std::string& path, int32_t& textureId, int slot) override;
    float PointSizeGranularity() override { return granularity; }

    struct Request {
        std::string path;
        int slot = 0;
    };
    std::vector<Request> requests;
    bool answer = true;        // what LoadGLTexture returns
    int32_t nextTextureId = 1; // the name handed out by the next successful load
    float granularity = 0.125f;
};

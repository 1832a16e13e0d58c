#include "currentmodel.h"

#include <memory>

namespace {
std::unique_ptr<model> openModel;
}

model& CurrentModel() {
    if (!openModel)
        openModel = std::make_unique<model>();
    return *openModel;
}

void ReplaceCurrentModel() {
    openModel = std::make_unique<model>();
}

void ReleaseCurrentModel() {
    openModel.reset();
}

#include "framemessages.h"

#include "modelhost.h"
#include "scenefingerprint.h"

#include <QTimer>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

std::vector<std::string> noted;
// The fingerprint of the last frame whose messages were shown; none once a frame met none.
std::optional<uint64_t> shownFor;

} // namespace

void NoteFrameMessage(const std::string& text) {
    if (std::find(noted.begin(), noted.end(), text) == noted.end())
        noted.push_back(text);
}

void PostFrameMessages(const FrameSource& source) {
    // A picking pass walks what the frames on screen walk, and they have met the same messages.
    if (source.current != nullptr && source.current->RenderType) {
        noted.clear();
        return;
    }
    if (noted.empty()) {
        shownFor.reset();
        return;
    }
    std::vector<std::string> texts = std::move(noted);
    noted.clear();
    const uint64_t scene = SceneFingerprint(source);
    if (shownFor == scene)
        return;
    shownFor = scene;
    QTimer::singleShot(0, [texts = std::move(texts)] {
        for (const std::string& text : texts)
            ShowMessage(text);
    });
}

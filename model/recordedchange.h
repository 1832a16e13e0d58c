// The one way a change enters the journal: made at the top of an operation that changes the
// current file, after its refusals; when it goes out of scope and the file differs from what it
// was, the change is recorded under `label`. A change made inside another (a spin set by an
// operation, whose handler writes a field) belongs to the outer one.
#pragma once

#include "filerecord.h"

#include <optional>
#include <string>

class model;

class RecordedChange {
public:
    RecordedChange(model& m, std::string label);
    ~RecordedChange();
    RecordedChange(const RecordedChange&) = delete;
    RecordedChange& operator=(const RecordedChange&) = delete;

private:
    model& model_;
    std::string label_;
    bool outermost_;
    int16_t slot_ = -1;
    std::optional<FileRecord> before_;
};

// True when `a` and `b` hold the same model: every field but the file's name, slot, texture
// name in the GL context and loaded mark.
bool SameContents(const FileRecord& a, const FileRecord& b);

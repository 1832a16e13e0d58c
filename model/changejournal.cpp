#include "changejournal.h"

#include "modelhost.h"

#include <utility>

namespace {

template <typename T> std::size_t VectorBytes(const std::vector<T>& entries) {
    return entries.capacity() * sizeof(T);
}

// About what a copy of `record` takes in memory.
std::size_t RecordBytes(const FileRecord& record) {
    std::size_t bytes = sizeof(FileRecord) + record.Filename.capacity() +
                        VectorBytes(record.Parts) + VectorBytes(record.NRM) +
                        VectorBytes(record.PART) + VectorBytes(record.Nodes) +
                        VectorBytes(record.Offsets) + VectorBytes(record.Elements);
    for (const ElementList& list : record.Elements) {
        bytes += VectorBytes(list.Items);
        for (const Piggyback& item : list.Items)
            bytes += VectorBytes(item.NodeList) + VectorBytes(item.XMap) + VectorBytes(item.YMap);
    }
    return bytes;
}

bool ValidSlot(int16_t slot) {
    return slot >= 0 && slot < kFileSlots;
}

} // namespace

ChangeJournal::ChangeJournal(std::size_t maxSteps, std::size_t maxBytes)
    : maxSteps_(maxSteps), maxBytes_(maxBytes) {}

void ChangeJournal::Record(int16_t slot, FileRecord before, const std::string& label) {
    if (!ValidSlot(slot))
        return;
    if (open_ && applied_ == steps_.size() && applied_ > 0 && steps_.back().label == label &&
        steps_.back().slot == slot)
        return;
    while (steps_.size() > applied_) {
        bytes_ -= steps_.back().bytes;
        steps_.pop_back();
    }
    Step step{label, slot, std::move(before), nextId_++, 0};
    step.bytes = RecordBytes(step.record) + label.capacity();
    bytes_ += step.bytes;
    steps_.push_back(std::move(step));
    applied_ = steps_.size();
    open_ = true;
    while (steps_.size() > maxSteps_ || (bytes_ > maxBytes_ && steps_.size() > 1))
        DropOldest();
    Notify();
}

void ChangeJournal::DropOldest() {
    const Step& oldest = steps_.front();
    base_[static_cast<std::size_t>(oldest.slot)] = oldest.id;
    bytes_ -= oldest.bytes;
    steps_.pop_front();
    --applied_;
}

void ChangeJournal::CloseStep() {
    open_ = false;
}

bool ChangeJournal::Exchange(Step& step, std::vector<FileRecord>& files) {
    if (static_cast<std::size_t>(step.slot) >= files.size())
        return false;
    FileRecord& live = files[static_cast<std::size_t>(step.slot)];
    std::swap(live, step.record);
    // The file's identity is not part of a change: a save since then renamed it, and its texture
    // lives in the GL context.
    std::swap(live.Index, step.record.Index);
    std::swap(live.Filename, step.record.Filename);
    std::swap(live.TextureID, step.record.TextureID);
    std::swap(live.Loaded, step.record.Loaded);
    bytes_ -= step.bytes;
    step.bytes = RecordBytes(step.record) + step.label.capacity();
    bytes_ += step.bytes;
    return true;
}

int16_t ChangeJournal::Undo(std::vector<FileRecord>& files) {
    open_ = false;
    if (!CanUndo() || !Exchange(steps_[applied_ - 1], files))
        return -1;
    --applied_;
    Notify();
    return steps_[applied_].slot;
}

int16_t ChangeJournal::Redo(std::vector<FileRecord>& files) {
    open_ = false;
    if (!CanRedo() || !Exchange(steps_[applied_], files))
        return -1;
    ++applied_;
    Notify();
    return steps_[applied_ - 1].slot;
}

std::string ChangeJournal::UndoLabel() const {
    return CanUndo() ? steps_[applied_ - 1].label : std::string();
}

std::string ChangeJournal::RedoLabel() const {
    return CanRedo() ? steps_[applied_].label : std::string();
}

uint64_t ChangeJournal::StateOf(int16_t slot) const {
    for (std::size_t k = applied_; k > 0; --k) {
        if (steps_[k - 1].slot == slot)
            return steps_[k - 1].id;
    }
    return base_[static_cast<std::size_t>(slot)];
}

void ChangeJournal::MarkSaved(int16_t slot) {
    if (!ValidSlot(slot))
        return;
    // What comes after a save is a change of its own, even within one gesture.
    open_ = false;
    saved_[static_cast<std::size_t>(slot)] = StateOf(slot);
    Notify();
}

bool ChangeJournal::Modified() const {
    for (int16_t slot = 0; slot < kFileSlots; ++slot) {
        if (StateOf(slot) != saved_[static_cast<std::size_t>(slot)])
            return true;
    }
    return false;
}

void ChangeJournal::Notify() {
    Host().JournalChanged();
}

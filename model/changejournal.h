// The journal of changes to the open model: for each change, the record of the file it changed
// as it stood before, so that the change can be taken back and brought back again. Steps of one
// gesture (a drag, a spin held down, one click of a group spin over several rows) join into one
// change; the window says when a gesture has ended.
#pragma once

#include "filerecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

// How many changes the journal keeps, and about how much memory their copies may take; past
// either the oldest changes go first.
constexpr std::size_t kJournalSteps = 300;
constexpr std::size_t kJournalBytes = std::size_t{64} << 20;

class ChangeJournal {
public:
    // Not explicit: the model that holds the journal stays a plain struct that can be built
    // from braces, which is how its members are counted and visited.
    ChangeJournal() : ChangeJournal(kJournalSteps, kJournalBytes) {}
    ChangeJournal(std::size_t maxSteps, std::size_t maxBytes);

    // Keeps `before`, the record of file `slot` as it stood before the change `label`. While the
    // newest change is still open and has the same label and file, the two are one change and
    // `before` is dropped. A new change drops every change that was taken back.
    void Record(int16_t slot, FileRecord before, const std::string& label);
    // The newest change ends: the next one starts a change of its own. The window calls this when
    // a gesture ends (mouse, key or spin released, focus moved, a menu command).
    void CloseStep();

    // Takes back the newest change, or brings back the last one taken back, by exchanging the
    // contents of its file in `files` with the journal's copy; the file keeps its name, slot and
    // texture. Returns the slot of that file, or -1 when there is nothing to do.
    int16_t Undo(std::vector<FileRecord>& files);
    int16_t Redo(std::vector<FileRecord>& files);

    bool CanUndo() const { return applied_ > 0; }
    bool CanRedo() const { return applied_ < steps_.size(); }
    // The names of the change Undo and Redo would act on; empty when there is none.
    std::string UndoLabel() const;
    std::string RedoLabel() const;
    std::size_t StepCount() const { return steps_.size(); }

    // File `slot` was written as it stands now.
    void MarkSaved(int16_t slot);
    // True while some file differs from what was last loaded or saved.
    bool Modified() const;

    // Gates the recording of changes that one change makes through others: only the outermost
    // records. Enter returns true for the outermost.
    bool Enter() { return depth_++ == 0; }
    void Leave() { --depth_; }

private:
    struct Step {
        std::string label;
        int16_t slot = 0;
        FileRecord record;
        uint64_t id = 0;
        std::size_t bytes = 0;
    };

    // Exchanges the contents of the step's copy with its file; false when the file is not there.
    bool Exchange(Step& step, std::vector<FileRecord>& files);
    void DropOldest();
    // The newest applied change of file `slot`, or the mark of where its known history begins.
    uint64_t StateOf(int16_t slot) const;
    static void Notify();

    std::size_t maxSteps_;
    std::size_t maxBytes_;
    std::deque<Step> steps_;
    // Steps before this index are applied; those from it on were taken back.
    std::size_t applied_ = 0;
    std::size_t bytes_ = 0;
    bool open_ = false;
    int depth_ = 0;
    uint64_t nextId_ = 1;
    // Per file: the state last loaded or saved, and the newest change dropped by the bound.
    std::array<uint64_t, kFileSlots> saved_{};
    std::array<uint64_t, kFileSlots> base_{};
};

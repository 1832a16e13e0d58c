#include "nodetable.h"

#include "editsteps.h"
#include "modelhost.h"
#include "recordedchange.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr const char* kNodeSpin = "upd_4_node";
// The range of the Nodes tab's coordinate spins.
constexpr int kSpinMin = -32767;
constexpr int kSpinMax = 32767;
constexpr const char* kTooManyNodes =
    "This file already holds 256 nodes, the most that corners can name (0 to 255). No node was "
    "added.";

// Marks every node that a corner of a piggyback other than NULL names. Returns false when a
// corner names a node past the table: nothing can be decided about such a file.
bool MarkUsedNodes(const FileRecord& file, std::vector<bool>& used) {
    const int elements = std::min<int>(file.NumElements, static_cast<int>(file.Elements.size()));
    for (int i = 0; i < elements; ++i) {
        const ElementList& list = file.Elements[i];
        const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
        for (int j = 0; j < count; ++j) {
            const Piggyback& item = list.Items[j];
            if (item.Type == kTypeNull)
                continue;
            for (int k = 0; k < item.CRN; ++k) {
                if (k >= static_cast<int>(item.NodeList.size()))
                    return false;
                const size_t c = item.NodeList[k];
                if (c + 1 >= used.size())
                    return false;
                used[c] = true;
            }
        }
    }
    return true;
}

bool Ask(const std::string& text, const std::string& title) {
    return Host().ShowMessage(text, MessageButtons::YesNo, MessageIcon::Question, title) ==
           MessageAnswer::Yes;
}

// Gives every corner of every live piggyback its node's new number; those nodes all stay. Entries
// that are no live corner (the spare entry, the lists of a NULL piggyback) follow their node too
// when it stays and become 0 when it goes, so that a later change of kind never brings back a
// number past the table.
void Renumber(FileRecord& file, const std::vector<bool>& used, const std::vector<int>& shift) {
    const int elements = std::min<int>(file.NumElements, static_cast<int>(file.Elements.size()));
    for (int i = 0; i < elements; ++i) {
        for (Piggyback& item : file.Elements[i].Items) {
            for (uint8_t& c : item.NodeList) {
                const bool stays = c + 1u < used.size() && used[c];
                c = stays ? static_cast<uint8_t>(c + shift[c]) : uint8_t{0};
            }
        }
    }
}

} // namespace

void AddNode(model& m) {
    FileRecord* file = EditableFile(m);
    if (file == nullptr)
        return;
    if (file->NumNodes < 0) {
        ShowMessage("The node count of this file is damaged (" + std::to_string(file->NumNodes) +
                    "). No node was added.");
        return;
    }
    if (file->NumNodes > kHighestNamedNode) {
        ShowMessage(kTooManyNodes);
        return;
    }
    const RecordedChange change(m, "Add node");
    ++file->NumNodes;
    file->Nodes.resize(static_cast<size_t>(file->NumNodes) + 1);
    file->Nodes[file->NumNodes - 1] = Node{};
    Host().SetSpinMaximum(kNodeSpin, file->NumNodes - 1);
    Host().SetSpinValue(kNodeSpin, file->NumNodes - 1);
}

void RemoveNodes(model& m, bool zero) {
    FileRecord* file = EditableFile(m);
    if (file == nullptr)
        return;
    const int count = std::min<int>(file->NumNodes, static_cast<int>(file->Nodes.size()));
    if (count < 0)
        return;
    std::vector<bool> used(static_cast<size_t>(count) + 1, false);
    if (!MarkUsedNodes(*file, used))
        return;
    const int usedCount = static_cast<int>(std::count(used.begin(), used.end() - 1, true));
    const std::string unused = std::to_string(count - usedCount);

    if (zero) {
        if (!Ask("Do you want to set all " + unused + " unused nodes to ZERO?", "Zero Nodes?"))
            return;
        const RecordedChange change(m, "Zero unused nodes");
        for (int n = 0; n < count; ++n) {
            if (!used[n])
                file->Nodes[n] = Node{};
        }
        return;
    }

    if (!Ask("Do you want to delete all " + unused + " unused nodes?", "Delete Nodes?"))
        return;
    const RecordedChange change(m, "Delete unused nodes");
    std::vector<int> shift(used.size(), 0);
    int running = 0;
    for (int n = 0; n < count; ++n) {
        if (!used[n])
            --running;
        shift[n] = running;
    }
    int source = 0;
    for (int destination = 0; destination < usedCount; ++destination) {
        while (!used[source])
            ++source;
        file->Nodes[destination] = file->Nodes[source];
        ++source;
    }
    file->Nodes.resize(static_cast<size_t>(usedCount) + 1);
    file->Nodes[usedCount] = Node{};
    file->NumNodes = static_cast<int16_t>(usedCount);
    Renumber(*file, used, shift);
}

void MoveNode(model& m, [[maybe_unused]] int16_t node, int32_t Axis, int16_t dist) {
    if (EditableFile(m) == nullptr)
        return;
    const char* spin = Axis == kAxisX   ? "upd_4_x"
                       : Axis == kAxisY ? "upd_4_y"
                       : Axis == kAxisZ ? "upd_4_z"
                                        : nullptr;
    if (spin == nullptr)
        return;
    const RecordedChange change(m, "Move node " + std::to_string(Host().SpinValue(kNodeSpin)));
    Host().SetSpinValue(spin, std::clamp(Host().SpinValue(spin) + dist, kSpinMin, kSpinMax));
}

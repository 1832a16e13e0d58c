#include "editedmodel.h"
#include "recordinghost.h"
#include "wholemodel.h"

#include <gtest/gtest.h>

namespace {

model NodesAlongX(const std::vector<int16_t>& xs) {
    MoxBuilder b;
    for (const int16_t x : xs)
        b.nodes.push_back(Node{int16_t(-x), 1, x, 0});
    b.streams = {StreamBytes().Hardpoint(25, 0).End().bytes};
    return LoadedModel(b);
}

std::vector<int16_t> Xs(const model& m) {
    std::vector<int16_t> xs;
    for (int n = 0; n < m.Files[0].NumNodes; ++n)
        xs.push_back(m.Files[0].Nodes[n].X);
    return xs;
}

} // namespace

TEST(WholeModel, RescaleRoundsHalvesToEvenAndRefusesOverflowWhole) {
    struct Row {
        double factor;
        std::vector<int16_t> before, after;
        std::vector<MessageAnswer> answers;
        const char* message;
    };
    const Row rows[] = {
        {0.5, {3, 5, 7, -3, 4}, {2, 2, 4, -2, 2}, {}, ""},
        {1.0, {3, -32768, 32767}, {3, -32768, 32767}, {}, ""},
        {2.0,
         {5, 20000, 30000},
         {5, 20000, 30000},
         {},
         "Scaling by 2 would take X of node 1 to 40000, beyond the range of a coordinate "
         "(-32768 to 32767). Nothing was scaled."},
        {0.0,
         {5, -7},
         {5, -7},
         {MessageAnswer::No},
         "Scaling by 0 puts every node of this file at the origin. Do you want to scale it?"},
        {-1.0,
         {5, -7},
         {-5, 7},
         {MessageAnswer::Yes},
         "Scaling by -1 mirrors every node of this file through the origin. Do you want to scale "
         "it?"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.factor);
        RecordingHost host;
        host.answers.assign(row.answers.begin(), row.answers.end());
        model m = NodesAlongX(row.before);
        Rescale(m, row.factor);
        EXPECT_EQ(Xs(m), row.after);
        EXPECT_EQ(host.messages, Shown(row.message));
    }
}

#include "piggybacknumber.h"

#include <gtest/gtest.h>

TEST(PiggybackNumber, GetElementNodeRefusesWhatDoesNotExist) {
    FileRecord record;
    record.NumNodes = 2;
    record.Nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 0}, Node{}};
    record.NumElements = 1;
    record.Elements.resize(2);
    Piggyback item;
    item.Type = 3;
    item.CRN = 2;
    item.NodeList = {1, 7, 0};
    record.Elements[0].Items = {item, Piggyback{}};
    record.Elements[0].Count = 1;

    Node node;
    ASSERT_TRUE(GetElementNode(record, 0, 0, node));
    EXPECT_EQ(node.X, 6);
    EXPECT_FALSE(GetElementNode(record, 0, 1, node)) << "node 7 lies outside Nodes";
    EXPECT_FALSE(GetElementNode(record, 1, 0, node)) << "no piggyback at position 1";
    EXPECT_FALSE(GetElementNode(record, 100, 0, node)) << "no element 1";
    EXPECT_FALSE(GetElementNode(record, -1, 0, node));
}

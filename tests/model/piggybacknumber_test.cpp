#include "piggybacknumber.h"

#include <gtest/gtest.h>

TEST(PiggybackNumber, SplitsByItsLastTwoDecimalDigits) {
    EXPECT_EQ(MakeNumber(3, 7), 307);
    const PiggybackRef ref = SplitNumber(25499);
    EXPECT_EQ(ref.element, 254);
    EXPECT_EQ(ref.position, 99);
    EXPECT_EQ(SplitNumber(5).element, 0);
    EXPECT_EQ(SplitNumber(5).position, 5);
    // Position 100 of element 0 packs to the Number of element 1, position 0.
    EXPECT_EQ(SplitNumber(MakeNumber(0, 100)).element, 1);
    EXPECT_EQ(SplitNumber(MakeNumber(0, 100)).position, 0);
}

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

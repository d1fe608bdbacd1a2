// What stands in front of packed objects, and when they are enough.

#include "ObjectStream.h"

#include <gtest/gtest.h>

TEST(FlussoDiOggetti, DiceINumeriEDoveCominciano)
{
    pdf::ObjectStream flusso;
    EXPECT_EQ(flusso.Index(), "");
    EXPECT_EQ(flusso.End(), 0U);
    flusso.Add(7, 10);
    flusso.Add(3, 10); // one of no bytes
    flusso.Add(8388607, 25);
    EXPECT_EQ(flusso.Index(), "7 0 3 10 8388607 10 ");
    EXPECT_EQ(flusso.End(), 25U);
    flusso.Clear();
    EXPECT_EQ(flusso.Index(), "");
    EXPECT_EQ(flusso.End(), 0U);
}

TEST(FlussoDiOggetti, EPienoConDuecento)
{
    pdf::ObjectStream flusso;
    for (int i = 1; i < 200; ++i) flusso.Add(i, static_cast<std::size_t>(i));
    EXPECT_FALSE(flusso.IsFull());
    flusso.Add(200, 200);
    EXPECT_TRUE(flusso.IsFull());
}

TEST(FlussoDiOggetti, EPienoConTantiByte)
{
    pdf::ObjectStream flusso;
    flusso.Add(1, 32767);
    EXPECT_FALSE(flusso.IsFull());
    flusso.Add(2, 32768);
    EXPECT_TRUE(flusso.IsFull());
}

#include "FileBuffer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>
#include <utility>

namespace {

constexpr std::size_t HugePage = std::size_t{2} << 20;

void FillAndCheck(FileBuffer& buffer)
{
    std::uint8_t* data = buffer.Data();
    for (std::size_t i = 0; i < buffer.Size(); ++i)
        data[i] = static_cast<std::uint8_t>(i * 7);
    buffer.Seal();
    const FileBuffer& sealed = buffer;
    for (std::size_t i = 0; i < sealed.Size(); i += 4093)
        ASSERT_EQ(sealed.Data()[i], static_cast<std::uint8_t>(i * 7));
    ASSERT_EQ(sealed.Data()[sealed.Size() - 1], static_cast<std::uint8_t>((sealed.Size() - 1) * 7));
}

} // namespace

TEST(FileBuffer, AnEmptyBufferHasNoBytes)
{
    FileBuffer none(0);
    EXPECT_EQ(none.Data(), nullptr);
    EXPECT_EQ(none.Size(), 0u);
    none.Seal(); // nothing to seal
}

TEST(FileBuffer, SmallAndLargeBuffersHoldEveryByte)
{
    for (const std::size_t size : {std::size_t{1}, std::size_t{4096}, std::size_t{5000}, HugePage - 1, HugePage,
             HugePage + 1, std::size_t{5610862}}) {
        FileBuffer buffer(size);
        ASSERT_NE(buffer.Data(), nullptr);
        EXPECT_EQ(buffer.Size(), size);
        FillAndCheck(buffer);
    }
}

TEST(FileBuffer, TheRoomStartsEmpty)
{
    FileBuffer buffer(HugePage + 3);
    const std::uint8_t* data = buffer.Data();
    EXPECT_EQ(std::accumulate(data, data + buffer.Size(), std::size_t{0}), 0u);
}

TEST(FileBuffer, ALargeBufferStartsOnAHugePageBoundary)
{
    FileBuffer buffer(HugePage + 12345);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(buffer.Data()) % HugePage, 0u);
}

TEST(FileBuffer, MovingHandsTheBytesOver)
{
    FileBuffer first(10000);
    first.Data()[9999] = 42;
    FileBuffer second(std::move(first));
    EXPECT_EQ(first.Data(), nullptr);
    EXPECT_EQ(first.Size(), 0u);
    ASSERT_EQ(second.Size(), 10000u);
    EXPECT_EQ(second.Data()[9999], 42);
    FileBuffer third(5);
    third = std::move(second);
    EXPECT_EQ(third.Size(), 10000u);
    EXPECT_EQ(third.Data()[9999], 42);
    EXPECT_EQ(second.Data(), nullptr);
}

TEST(FileBufferDeathTest, ASealedBufferCannotBeWritten)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    FileBuffer buffer(8192);
    buffer.Seal();
    EXPECT_DEATH(buffer.Data()[100] = 1, "");
}

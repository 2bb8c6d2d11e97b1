// A number of more digits than an int can count. The text takes hardly any memory: the same page
// of zeros stands in it again and again.
#include "json/decoder/scanNumber.hpp"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <system_error>

namespace {

using corvane::utils::json::decoder::detail::ScannedNumber;
using corvane::utils::json::decoder::detail::scanNumber;

constexpr std::size_t kPage = std::size_t{1} << 20U;

/// A beginning and an end, each in a page of its own, and so many pages of zeros between them.
class LongText {
public:
    LongText(std::string_view beginning, std::size_t zeroPages, std::string_view end)
        : size_((zeroPages + 2) * kPage),
          memory_(static_cast<char*>(
              mapped(::mmap(nullptr, size_, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)))),
          begin_(memory_ + kPage - beginning.size()), end_(memory_ + size_ - kPage + end.size()) {
        std::ranges::copy(beginning, begin_);
        std::ranges::copy(end, memory_ + size_ - kPage);
        const int zeros = ::memfd_create("zeros", 0);
        if (zeros < 0 || ::ftruncate(zeros, kPage) != 0) {
            throw std::system_error(errno, std::system_category());
        }
        for (std::size_t page = 1; page <= zeroPages; ++page) {
            mapped(::mmap(memory_ + page * kPage, kPage, PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_FIXED, zeros, 0));
        }
        std::fill_n(memory_ + kPage, kPage, '0');
        ::close(zeros);
    }
    LongText(const LongText&) = delete;
    LongText& operator=(const LongText&) = delete;
    ~LongText() { ::munmap(memory_, size_); }

    [[nodiscard]] const char* begin() const noexcept { return begin_; }
    [[nodiscard]] const char* end() const noexcept { return end_; }

private:
    static void* mapped(void* memory) {
        if (memory == MAP_FAILED) {
            throw std::system_error(errno, std::system_category());
        }
        return memory;
    }

    std::size_t size_;
    char* memory_;
    char* begin_;
    char* end_;
};

TEST(ScanNumber, CountsMoreDigitsThanAnIntHolds) {
    // 2^31 zeros and a one stand behind the point.
    const LongText text("0.", 2048, "1e2147483650");
    const ScannedNumber number = scanNumber(text.begin(), text.end());
    EXPECT_EQ(number.outcome, ScannedNumber::Outcome::Number);
    EXPECT_EQ(std::bit_cast<double>(number.bits), 10.0);
    EXPECT_EQ(number.end, text.end());
}

} // namespace

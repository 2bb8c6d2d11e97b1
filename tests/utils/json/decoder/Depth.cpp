// How much stack the deepest text needs; only Linux lets a thread's stack be chosen here.
#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>
#include <pthread.h>

#include <string>

namespace {

using corvane::tests::syntaxError;

TEST(JsonDecoderDocument, ReadsTheDeepestTextOnAStackOfHalfAMebibyte) {
    static std::string text;
    text.clear();
    for (int level = 0; level != 256; ++level) {
        text += "[{\"a\\n\":";
    }
    text += "\"\\u00e9\"";
    for (int level = 0; level != 256; ++level) {
        text += "}]";
    }
    static std::string error;
    error = "not run";

    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 512 * 1024), 0);
    pthread_t thread{};
    const auto run = [](void*) -> void* {
        error = syntaxError(text);
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, nullptr), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(error, "nothing thrown");
}

} // namespace

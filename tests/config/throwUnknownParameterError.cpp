#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>

namespace {

using corvane::workbench::config::throwUnknownParameterError;
namespace decoder = corvane::utils::json::decoder;

TEST(ThrowUnknownParameterError, ANameFromAFileIsReportedWithItsLocation) {
    const decoder::Name name("speed", decoder::Location(12, 5));
    try {
        throwUnknownParameterError(name);
    } catch (const decoder::detail::WrappedException<std::runtime_error>& error) {
        const std::runtime_error& asRuntimeError = error;
        const decoder::Exception& asDecoderException = error;
        EXPECT_STREQ(asRuntimeError.what(), "unknown parameter \"speed\"");
        EXPECT_EQ(asDecoderException.location().line(), 12U);
        EXPECT_EQ(asDecoderException.location().column(), 5U);
    }
}

TEST(ThrowUnknownParameterError, IsCaughtAsADecoderExceptionAndAsARuntimeError) {
    const decoder::Name name("speed", decoder::Location(12, 5));
    EXPECT_THROW(throwUnknownParameterError(name), decoder::Exception);
    EXPECT_THROW(throwUnknownParameterError(name), std::runtime_error);
}

TEST(ThrowUnknownParameterError, ANameWithoutALocationGivesAPlainError) {
    try {
        throwUnknownParameterError(decoder::Name("speed"));
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(typeid(error), typeid(std::runtime_error));
        EXPECT_STREQ(error.what(), "unknown parameter \"speed\"");
    }
}

TEST(ThrowUnknownParameterError, TheNameStandsInTheMessageAsItIs) {
    try {
        throwUnknownParameterError(decoder::Name("{} \"\xc3\xa4"));
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()), "unknown parameter \"{} \"\xc3\xa4\"");
    }
}

} // namespace

#include "ConfigurationText.hpp"

#include "Failure.hpp"
#include "standardStreams.hpp"
#include "text.hpp"
#include <corvane/utils/io/FileInputStream.hpp>

#include <functional>
#include <istream>
#include <iterator>
#include <system_error>

namespace corvane::skillbench {

namespace {

std::string readFile(const std::filesystem::path& file) {
    utils::io::FileInputStream stream(file);
    std::string text;
    (void)stream.readRest(text);
    return text;
}

std::string readConfiguration(const std::filesystem::path& file) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(file, ignored);
    if (status.type() == std::filesystem::file_type::not_found) {
        throw Failure(kWrongUsage, inQuotes(pathText(file)) + " does not exist");
    }
    if (std::filesystem::is_directory(status)) {
        throw Failure(kWrongUsage,
                      inQuotes(pathText(file)) + " is a directory, not a configuration");
    }
    try {
        return readFile(file);
    } catch (const std::system_error& error) {
        throw Failure(kWrongUsage, error.what());
    }
}

std::size_t hashOf(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

} // namespace

ConfigurationText::ConfigurationText(const std::string& argument, std::istream& standardInput)
    : file_(pathOf(argument)),
      text_(isStandardInput() ? std::string(std::istreambuf_iterator<char>(standardInput), {})
                              : readConfiguration(file_)),
      size_(text_.size()), hash_(hashOf(text_)) {}

bool ConfigurationText::isStandardInput() const noexcept {
    return file_ == kStandardStream;
}

void ConfigurationText::forgetText() noexcept {
    std::string().swap(text_);
}

bool ConfigurationText::isFile(const std::filesystem::path& path) const {
    std::error_code ignored;
    return !isStandardInput() &&
           (path == file_ || std::filesystem::equivalent(path, file_, ignored));
}

bool ConfigurationText::hasChanged() const {
    try {
        const std::string now = readFile(file_);
        return now.size() != size_ || hashOf(now) != hash_;
    } catch (const std::system_error&) {
        return true;
    }
}

} // namespace corvane::skillbench

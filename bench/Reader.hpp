#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::bench {

/// What a library made of a text.
class ReadDocument {
public:
    ReadDocument() = default;
    ReadDocument(const ReadDocument&) = delete;
    ReadDocument& operator=(const ReadDocument&) = delete;
    virtual ~ReadDocument() = default;

    /// The compact text.
    [[nodiscard]] virtual std::string write() const = 0;
};

/// A JSON library under comparison: it reads a text into its own document, which can be written
/// again. Each library enters itself from its own source file.
///
/// Enters itself into the list as it is constructed; meant for static objects.
class Reader {
public:
    using Read = std::unique_ptr<ReadDocument> (*)(std::string_view text);

    Reader(const char* libraryName, Read readText);
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    [[nodiscard]] const char* name() const noexcept { return name_; }
    /// Throws if the library refuses the text.
    [[nodiscard]] std::unique_ptr<ReadDocument> read(std::string_view text) const {
        return read_(text);
    }

    [[nodiscard]] static const std::vector<const Reader*>& all();

private:
    const char* name_;
    Read read_;
};

} // namespace corvane::bench

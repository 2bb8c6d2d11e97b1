#pragma once

// The texts that the libraries are compared on.

#include <string>
#include <vector>

namespace corvane::bench {

struct Document {
    std::string name;
    std::string text;
};

/// The files' documents, each named after its file; without files three generated ones, the same in
/// every run: "messages" (many small objects and strings, partly not ASCII), "catalogue" (many
/// integers and short names), "outlines" (many doubles). Throws std::runtime_error if a file cannot
/// be read.
[[nodiscard]] std::vector<Document> documentsFrom(const std::vector<std::string>& files);

/// Strings outside ASCII, as long as a line of a message.
[[nodiscard]] std::vector<Document> textDocuments();

/// About 100 bytes.
[[nodiscard]] Document smallDocument();

} // namespace corvane::bench

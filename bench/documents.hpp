#pragma once

// The texts that the libraries are compared on.

#include <string>
#include <vector>

namespace corvane::bench {

struct Document {
    std::string name;
    std::string text;
};

/// Three generated texts, the same in every run: "messages" (many small objects and strings, partly
/// not ASCII), "catalogue" (many integers and short names), "outlines" (many doubles).
[[nodiscard]] std::vector<Document> generatedDocuments();

/// A document from a file, named after it. Throws std::runtime_error if it cannot be read.
[[nodiscard]] Document documentFromFile(const std::string& path);

} // namespace corvane::bench

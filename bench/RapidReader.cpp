#include "Reader.hpp"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <stdexcept>

namespace corvane::bench {
namespace {

/// Takes the memory where json_memory counts it.
class CountedAllocator {
public:
    static constexpr bool kNeedFree = true;

    void* Malloc(std::size_t size) { return size == 0 ? nullptr : ::operator new(size); }
    void* Realloc(void* old, std::size_t oldSize, std::size_t newSize) {
        void* const moved = Malloc(newSize);
        if (old != nullptr && moved != nullptr) {
            std::copy_n(static_cast<const char*>(old), std::min(oldSize, newSize),
                        static_cast<char*>(moved));
        }
        Free(old);
        return moved;
    }
    static void Free(void* memory) { ::operator delete(memory); }
    bool operator==(const CountedAllocator&) const { return true; }
    bool operator!=(const CountedAllocator&) const { return false; }
};

using Pool = rapidjson::MemoryPoolAllocator<CountedAllocator>;
using Document = rapidjson::GenericDocument<rapidjson::UTF8<>, Pool, CountedAllocator>;

class RapidDocument final : public ReadDocument {
public:
    explicit RapidDocument(std::string_view text) {
        // Precise like the others: without the flag the last bits of a double may be wrong.
        document_.Parse<rapidjson::kParseFullPrecisionFlag | rapidjson::kParseValidateEncodingFlag>(
            text.data(), text.size());
        if (document_.HasParseError()) {
            throw std::runtime_error("RapidJSON refuses the text");
        }
    }

    [[nodiscard]] std::string write() const override {
        rapidjson::StringBuffer buffer;
        rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
        document_.Accept(writer);
        return {buffer.GetString(), buffer.GetSize()};
    }

private:
    Document document_;
};

const Reader kReader("rapidjson", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<RapidDocument>(text);
});

} // namespace
} // namespace corvane::bench

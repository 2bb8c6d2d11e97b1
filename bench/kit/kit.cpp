// Shows what an element class costs that is written with the skill kit, as a multiple of what its
// twin costs that is written by hand.
//
//     bench-kit [--check] [--json]
//
// --check exits with 1 when a figure exceeds its bar. Many elements with rows are loaded,
// configured and saved in turns; a figure is the median of the turns' ratios.
#include "../Figures.hpp"
#include "fans.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <exception>
#include <format>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::workbench;
using corvane::bench::Figures;
using skill::internal::ElementAccess;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

constexpr std::size_t kElements = 100'000;
constexpr std::size_t kTurns = 9;

/// Takes the keys and leaves the references empty.
class NoReferences final : public config::Context {
    void resolveElementReference(ReferenceKey&&, std::reference_wrapper<model::ElementReference>,
                                 std::function<void()>&&) override {}
    void resolveMemberReference(ReferenceKey&&,
                                std::reference_wrapper<model::internal::BasicElementReference>,
                                std::function<void()>&&) override {}
};

/// Every other fan shows all settings.
std::string configuration() {
    std::string text = "[";
    for (std::size_t number = 0; number < kElements; ++number) {
        text += number == 0 ? "" : ",";
        text += std::format(R"({{"location":"Hall {}","power":{}.5,"blades":{},"drive":"{} speed",)"
                            R"("reversible":{},"runUp":"{}ms",)",
                            number, number % 90, 2 + number % 20,
                            number % 2 == 0 ? "fixed" : "variable", number % 3 == 0,
                            100 + number % 900);
        if (number % 2 == 1) {
            text += R"("lowest":250,"highest":1450,)";
        }
        text += R"("source":"","limits":[{"threshold":12.5,"message":"Temperature is high"},)"
                R"({"threshold":17.25,"message":"Temperature is too high"}]})";
    }
    return text + "]";
}

class StopWatch {
public:
    /// The processor time since the last call.
    double lap() {
        const std::clock_t begin = std::exchange(begin_, std::clock());
        return static_cast<double>(begin_ - begin);
    }

private:
    std::clock_t begin_ = std::clock();
};

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What a number of elements cost.
struct Cost {
    double load;
    double configure;
    double save;
    double loadedBytes;
    double configuredBytes;
    std::string saved{};
};

using Make = std::unique_ptr<skill::Element> (*)();

Cost costOf(Make make, const std::string& text) {
    NoReferences context;
    std::vector<std::unique_ptr<skill::Element>> elements;
    elements.reserve(kElements);
    Cost cost{};

    const auto bytesBefore = static_cast<double>(bytesInUse());
    StopWatch watch;
    {
        corvane::utils::io::MemoryInputStream<char> stream(text);
        decoder::Document document(stream);
        for (decoder::Value& value : document.root().asArray()) {
            decoder::Object object = value.asObject();
            ElementAccess::load(*elements.emplace_back(make()), object, context);
        }
    }
    cost.load = watch.lap();
    cost.loadedBytes = static_cast<double>(bytesInUse()) - bytesBefore;

    watch.lap();
    for (const auto& element : elements) {
        if (element->propertyErrorCount() > 1) {
            throw std::logic_error("the benchmark's configuration is wrong");
        }
    }
    cost.configure = watch.lap();
    cost.configuredBytes = static_cast<double>(bytesInUse()) - bytesBefore;

    json::internal::StringOutputStream saved;
    watch.lap();
    encoder::Document written(saved);
    encoder::Array array = written.root().writeArray();
    for (const auto& element : elements) {
        encoder::Object object = array.addElement().writeObject();
        ElementAccess::save(*element, object);
    }
    written.close();
    cost.save = watch.lap();
    cost.saved = saved.take();
    return cost;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

void compare(Figures& figures) {
    const std::string text = configuration();
    std::vector<Cost> described;
    std::vector<Cost> handwritten;
    for (std::size_t turn = 0; turn < kTurns; ++turn) {
        described.push_back(costOf(corvane::bench::makeDescribedFan, text));
        handwritten.push_back(costOf(corvane::bench::makeHandwrittenFan, text));
        if (described.back().saved != handwritten.back().saved) {
            throw std::logic_error("the twins do not save the same");
        }
    }
    const auto add = [&](const char* name, double Cost::* part, double bar) {
        std::vector<double> ratios;
        for (std::size_t turn = 0; turn < kTurns; ++turn) {
            ratios.push_back(described[turn].*part / handwritten[turn].*part);
        }
        figures.add(name, median(std::move(ratios)), bar);
    };
    add("load, of by hand", &Cost::load, 1.15);
    add("configure, of by hand", &Cost::configure, 1.15);
    add("save, of by hand", &Cost::save, 1.15);
    add("bytes held when loaded, of by hand", &Cost::loadedBytes, 1.1);
    add("bytes held when configured, of by hand", &Cost::configuredBytes, 1.1);
}

} // namespace

int main(int argc, char** argv) {
    try {
        Figures figures(argc, argv);
        compare(figures);
        return figures.finish();
    } catch (const std::exception& error) {
        std::cerr << "bench-kit: " << error.what() << '\n';
        return 2;
    }
}

// What `skillbench edit` and `save` cost beside `check`, each in processes of its own.
//
//     bench-skillbench [--check] [ELEMENTS]
//
// Without a number there are 100,000 elements. Prints the processor time and the largest resident
// memory, medians of interleaved runs. With --check it fails when an edit needs more than 1.5 times
// what a check needs.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <format>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr double kMost = 1.5;
constexpr int kRuns = 5;

struct Cost {
    double seconds = 0;
    double megabytes = 0;
};

/// Controllers with pumps, their set points and measurements, and a timer for each controller that
/// starts its first pump.
void writeConfiguration(const std::filesystem::path& file, std::size_t elementCount) {
    constexpr int kPumps = 20;
    std::ofstream out(file, std::ios::binary);
    out << "{\"children\": [";
    std::size_t count = 0;
    for (int number = 0; count < elementCount; ++number) {
        out << (number == 0 ? "" : ",")
            << std::format(R"({{"PumpStation.Controller": {{"name": "PLC {}",
                "address": "10.20.1.10", "port": 502, "security": "none",
                "pollInterval": "250ms", "reconnectDelay": "5s", "children": [)",
                           number);
        for (int pump = 0; pump < kPumps; ++pump) {
            out << (pump == 0 ? "" : ",")
                << std::format(R"(
                {{"PumpStation.Pump": {{"name": "Pump {}", "drive": "fixed speed",
                  "ratedPower": 18.5, "ratedFlow": 80, "children": [
                    {{"PumpStation.Setpoint": {{"name": "Speed", "unit": "1/min",
                      "rangeLow": 0, "rangeHigh": 1500, "value": 900}}}},
                    {{"PumpStation.Measurement": {{"name": "Flow", "unit": "m³/h",
                      "channel": 3, "rangeLow": 0, "rangeHigh": 120, "alarmLimits": [
                        {{"kind": "low", "threshold": 5, "delay": "10s",
                          "message": "too little"}}]}}}}]}}}})",
                               pump);
        }
        out << std::format(R"(]}}}}, {{"PumpStation.SamplingTimer": {{"name": "Timer {}",
            "interval": "8h", "tasks": ["PLC {}.Pump 0.stop"]}}}})",
                           number, number);
        count += 3 * kPumps + 2;
    }
    out << "]}\n";
}

/// Runs the program without its output.
Cost run(std::vector<std::string> arguments) {
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stdout) == nullptr) {
            std::_Exit(1);
        }
        std::vector<char*> texts;
        for (std::string& argument : arguments) {
            texts.push_back(argument.data());
        }
        texts.push_back(nullptr);
        execv(texts.front(), texts.data());
        std::_Exit(1);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::cerr << "a run has failed\n";
        std::exit(1);
    }
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Command {
    std::string name;
    std::vector<std::string> arguments;
    std::vector<double> seconds{};
    std::vector<double> megabytes{};
};

} // namespace

int main(int argc, char** argv) {
    std::size_t elementCount = 100'000;
    bool checks = false;
    for (const std::string_view argument : std::vector<std::string_view>(argv + 1, argv + argc)) {
        if (argument == "--check") {
            checks = true;
        } else {
            std::from_chars(argument.data(), argument.data() + argument.size(), elementCount);
        }
    }
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / std::format("corvane-bench-{}", getpid());
    std::filesystem::create_directory(folder);
    const std::string file = folder / "plant.json";
    const std::string output = folder / "edited.json";
    writeConfiguration(file, elementCount);

    const auto command = [&](const char* name, std::initializer_list<std::string> further) {
        Command result{name, {CORVANE_SKILLBENCH, name, "--skill", CORVANE_PUMP_STATION, file}};
        result.arguments.insert(result.arguments.end(), further);
        return result;
    };
    std::vector<Command> commands{
        command("check", {}), command("save", {"-o", output}),
        command("edit", {"--rename", "PLC 7=PLC seven", "-o", output}),
        command("edit", {"--rename", "PLC 7=PLC seven", "-o", output, "--no-verify"})};
    commands.back().name += " --no-verify";
    for (int number = 0; number < kRuns; ++number) {
        for (Command& each : commands) {
            const Cost cost = run(each.arguments);
            each.seconds.push_back(cost.seconds);
            each.megabytes.push_back(cost.megabytes);
        }
    }
    std::filesystem::remove_all(folder);

    const Cost check{median(commands[0].seconds), median(commands[0].megabytes)};
    bool isGood = true;
    std::cout << std::format("{} elements\n{:<18}{:>8}{:>9}{:>8}{:>8}\n", elementCount, "command",
                             "CPU s", "of check", "MB", "of check");
    for (const Command& each : commands) {
        const double time = median(each.seconds);
        const double memory = median(each.megabytes);
        std::cout << std::format("{:<18}{:>8.2f}{:>9.2f}{:>8.0f}{:>8.2f}\n", each.name, time,
                                 time / check.seconds, memory, memory / check.megabytes);
        isGood = isGood && time <= kMost * check.seconds && memory <= kMost * check.megabytes;
    }
    if (checks && !isGood) {
        std::cout << std::format("more than {} times a check\n", kMost);
        return 1;
    }
    return 0;
}

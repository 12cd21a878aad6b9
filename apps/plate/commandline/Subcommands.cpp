#include "apps/plate/commandline/Subcommands.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zorvane {

namespace {

/// How many letters have to be put in, left out or replaced to make one word of the other.
std::size_t Distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace

std::vector<const CLI::App*> SubcommandsOf(const CLI::App& command) {
    return command.get_subcommands([](const CLI::App*) { return true; });
}

const CLI::App* SubcommandNamed(const CLI::App& command, const std::string& name) {
    for (const CLI::App* const each : SubcommandsOf(command))
        if (each->get_name() == name) return each;
    return nullptr;
}

std::string SimilarCommand(const CLI::App& parent, const std::string& name) {
    constexpr std::size_t longest = 20; // nobody mistypes a command as more than that
    if (name.size() > longest) return {};
    std::string similar;
    std::size_t least = 3;
    for (const CLI::App* const command : SubcommandsOf(parent)) {
        const std::string& each = command->get_name();
        const std::size_t distance = each.starts_with(name) ? 1 : Distance(name, each);
        // Hardly anybody gets the first letter wrong, and another one too.
        const bool unlike = distance > 1 && !name.starts_with(each.front());
        if (unlike || distance >= least || distance >= each.size()) continue;
        least = distance;
        similar = each;
    }
    return similar;
}

} // namespace zorvane

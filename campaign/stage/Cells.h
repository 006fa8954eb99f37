#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan::campaign {

/// One cell of a row: a fault at a place, and what it led to.
struct Cell {
    std::string name;
    /// Returns what is not as promised, a sentence each; none if all is. Must not use what other cells use.
    std::function<std::vector<std::string>()> play;
};

/// The cells that a row's program is asked for: all of them, those of the fixed part, or those with a text in their
/// names.
class Selection {
public:
    /// `arguments` are those of `main`: PROGRAM BINARIES all|part [TEXT]. One in `stride` cells belongs to the part.
    Selection(int count, char** arguments, unsigned stride);

    bool isMeant(std::string_view name) const;

private:
    bool isPart_ = false;
    unsigned stride_;
    std::string text_;
};

/// Writes a line for each cell to the standard output, as campaign/run reads it.
class Report {
public:
    void add(const std::string& name, const std::vector<std::string>& failures);

private:
    std::mutex mutex_;
};

/// Plays the selected ones of `cells`, `atOnce` at a time: most of them wait.
void play(const std::vector<Cell>& cells, const Selection& selection, Report& report, unsigned atOnce = 4);

}  // namespace larkspan::campaign

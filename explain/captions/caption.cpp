#include "explain/captions/caption.h"

#include "explain/standard/codes.h"

#include <algorithm>

namespace norvane {

std::string textOf(const CaptionRow &row) {
    std::string text;
    for (const Cell &cell : row.cells)
        text += isPrinting(cell.code) ? meaningOf(cell.code).shown : " ";
    return text;
}

std::vector<StyledColumns> stylesOf(const CaptionRow &row) {
    std::vector<StyledColumns> runs;
    int column = row.column;
    for (const Cell &cell : row.cells) {
        if (isPrinting(cell.code)) {
            if (!runs.empty() && runs.back().style == cell.style)
                runs.back().to = column;
            else
                runs.push_back({column, column, cell.style});
        }
        ++column;
    }
    std::erase_if(runs, [](const StyledColumns &run) { return run.style == Style(); });
    return runs;
}

long charactersOf(const Caption &caption) {
    long count = 0;
    for (const CaptionRow &row : caption.rows) {
        bool isBlank = false;
        for (const Cell &cell : row.cells) {
            const bool wasBlank = isBlank;
            isBlank = !isPrinting(cell.code);
            count += isBlank && wasBlank ? 0 : 1;
        }
    }
    return count;
}

std::optional<long> framesOf(const Caption &caption) {
    if (!caption.shownBy || !caption.removedBy)
        return {};
    return caption.removedBy->frame - caption.shownBy->frame;
}

std::vector<std::uint32_t> linesOf(const Caption &caption) {
    std::vector<std::uint32_t> lines;
    for (const CaptionRow &row : caption.rows) {
        for (const Cell &cell : row.cells) {
            if (cell.code != 0 && (lines.empty() || lines.back() != cell.sent.line))
                lines.push_back(cell.sent.line);
        }
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

Sending sendingOf(const Caption &caption) {
    const auto isEarlier = [](const Moment &a, const Moment &b) {
        return a.line < b.line || (a.line == b.line && a.word < b.word);
    };
    Sending sending{caption.rows.front().cells.front().sent,
                    caption.rows.front().cells.front().sent};
    for (const CaptionRow &row : caption.rows) {
        for (const Cell &cell : row.cells) {
            if (cell.code == 0)
                continue;
            if (isEarlier(cell.sent, sending.first))
                sending.first = cell.sent;
            if (isEarlier(sending.last, cell.sent))
                sending.last = cell.sent;
        }
    }
    return sending;
}

} // namespace norvane

#include "library/cache_search.h"

#include <utility>

#include "library/short_names.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::library {

bool CacheSearch::Next(Part& part) {
    part.hits.clear();
    if (!blocks.Next()) return false;
    words.ForEachLine(blocks.Block(), decode, [&](std::string_view line) {
        Take(line, part.hits);
        return true;
    });
    part.lineCount = blocks.LineCount();
    return true;
}

void CacheSearch::Take(std::string_view line, std::vector<Hit>& hits) {
    const std::string text = text::IsUtf8(line) ? std::string(line) : decode(line);
    std::string name = CutShortName(text::FileNameView(text), ")", false);
    std::string lowerName = text::ToLower(name);
    if (lowerName == lastName) return;
    lastName = lowerName;
    hits.push_back({std::move(name), std::move(lowerName)});
}

std::vector<CacheSearch::Part> CacheSearch::Rest(std::size_t limit, const std::atomic<bool>& stop) {
    std::vector<Part> parts;
    std::size_t hits = 0;
    for (Part part; hits <= limit && !stop && Next(part);) {
        hits += part.hits.size();
        parts.push_back(std::exchange(part, {}));
    }
    return parts;
}

}  // namespace kivu::library

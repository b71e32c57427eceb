#include "apps/cli/PlaceOptions.h"

#include <charconv>
#include <cstdlib>

#include "apps/cli/Assignments.h"
#include "apps/cli/Usage.h"
#include "pipeline/SubjectPlace.h"

namespace tavrin::cli {

namespace {

/// X,Y as whole thousandths; false when the text is nothing of the kind.
bool parseMove(const std::string& text, int& x, int& y) {
    const char* const end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, x);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != ',') return false;
    const auto second = std::from_chars(first.ptr + 1, end, y);
    return second.ec == std::errc() && second.ptr == end && std::abs(x) <= 10000 && std::abs(y) <= 10000;
}

bool placesBySetting(const std::vector<std::string>& set) {
    return setsAny(set, "foreground.fScale=") || setsAny(set, "foreground.iOrgXoff=") ||
           setsAny(set, "foreground.iOrgYoff=");
}

}  // namespace

void PlaceOptions::addTo(CLI::App& command) {
    const bool batch = command.get_name() == "batch";
    std::vector<std::string> rules = {"subject", "centre", "corner"};
    if (batch) rules.push_back("same");
    command
        .add_option("--place", rule,
                    std::string("Where the portrait stands: subject (framed), centre, corner (as the settings say)") +
                        (batch ? ", same (one frame for all)" : "") +
                        "; default subject, corner with a state or bare fields")
        ->check(oneOf(rules))
        ->type_name("NAME");
    command.add_option("--scale", scale, "Beside --place: larger by this factor")->check(within(0.01, 100.0));
    command.add_option("--move", move, "Beside --place: thousandths to the right and up, for example 20,-15")
        ->type_name("X,Y");
}

std::string PlaceOptions::apply(SystemInfo& info, const std::vector<std::string>& set, bool isPlaced) const {
    int x = 0, y = 0;
    if (!move.empty() && !parseMove(move, x, y))
        return "--move takes thousandths to the right and up, for example 20,-15, not \"" + move + "\".";
    if (common) {
        info.placedLast = *common;
        setPlace(*info.pForegroundBitmapInfo, *common);
        return "";
    }
    PlaceRule wanted = isPlaced || placesBySetting(set) ? PlaceRule::corner : PlaceRule::subject;
    if (rule == "subject" || rule == "same") wanted = PlaceRule::subject;
    if (rule == "centre") wanted = PlaceRule::centre;
    if (rule == "corner") wanted = PlaceRule::corner;
    // What a state or a setting had placed gives way to a rule that was asked for.
    if (wanted != PlaceRule::corner) setPlace(*info.pForegroundBitmapInfo, LayerPlace());
    wantPlace(info, wanted, scale, x, y);
    return "";
}

}  // namespace tavrin::cli

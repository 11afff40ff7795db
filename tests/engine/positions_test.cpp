#include "game_fixture.h"

#include <fstream>
#include <functional>
#include <map>
#include <sstream>

namespace {

// One case of positions.txt: its keys in order, a key repeated for each log line.
struct Position {
    std::string name;
    std::vector<std::pair<std::string, std::string>> lines;
};

void PrintTo(const Position& one, std::ostream* out)
{
    *out << one.name;
}

std::vector<Position> readPositions()
{
    std::ifstream in(TAVOK_POSITIONS);
    std::vector<Position> cases;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        const auto space = line.find(' ');
        const std::string key = line.substr(0, space);
        const std::string value = space == std::string::npos ? "" : line.substr(space + 1);
        if (key == "name")
            cases.push_back({value, {}});
        else if (!cases.empty())
            cases.back().lines.emplace_back(key, value);
    }
    return cases;
}

} // namespace

class Positions : public GameTest, public ::testing::WithParamInterface<Position> {};

TEST_P(Positions, PlayAsTheRulesSay)
{
    std::vector<std::string> expectedLog;
    auto number = [](const std::string& value) { return int16_t(std::stoi(value)); };
    const std::map<std::string, std::function<void(const std::string&)>> keys = {
        {"board", [&](auto& v) { setBoard(v); }},
        {"sow", [&](auto& v) { game.SowPot(number(v)); }},
        {"computer", [&](auto&) { game.ComputerMove(); }},
        {"click", [&](auto& v) { click(number(v)); }},
        {"force", [&](auto&) { game.TakeComp_Click(); }},
        {"hover", [&](auto& v) { game.Pots_MouseMove(number(v), 0, 0, 0, 0); }},
        {"formmove", [&](auto&) { game.Form_MouseMove(0, 0, 0, 0); }},
        {"hintdown", [&](auto&) { hintDown(); }},
        {"hintup", [&](auto&) { hintUp(); }},
        {"slider", [&](auto& v) { screen.moveSlider(number(v)); }},
        {"key", [&](auto& v) { key(number(v)); }},
        {"select", [&](auto& v) { state.KeyboardPot = number(v); }},
        {"selected", [&](auto& v) { EXPECT_EQ(state.KeyboardPot, number(v)); }},
        {"mouseup",
         [&](auto& v) {
             const auto space = v.find(' ');
             game.Pots_MouseUp(number(v.substr(0, space)), number(v.substr(space + 1)), 0, 0, 0);
         }},
        {"face", [&](auto& v) { screen.tags.at(number(v)) = ""; }},
        // A pick handed to HumanMove, and the result it must give: "pick  3 0".
        {"pick",
         [&](auto& v) {
             const auto space = v.rfind(' ');
             state.Text1 = v.substr(0, space);
             int16_t result = 99;
             game.HumanMove(result);
             EXPECT_EQ(result, number(v.substr(space + 1))) << "pick '" << state.Text1 << "'";
         }},
        {"undo", [&](auto& v) { EXPECT_EQ(screen.undoxEnabled, v == "1"); }},
        {"hot",
         [&](auto& v) {
             std::string flags;
             for (bool on : screen.hot)
                 flags += on ? '1' : '0';
             EXPECT_EQ(flags, v);
         }},
        {"label2", [&](auto& v) { EXPECT_EQ(screen.label2, v); }},
        {"after", [&](auto& v) { EXPECT_EQ(board(), v); }},
        {"last", [&](auto& v) { EXPECT_EQ(state.CurrentPot, number(v)); }},
        {"capture", [&](auto& v) { EXPECT_EQ(game.captureHolds(), v == "1"); }},
        {"log", [&](auto& v) { expectedLog.push_back(v); }},
        {"red",
         [&](auto&) {
             for (size_t i = 0; i < moves().size(); ++i)
                 EXPECT_EQ(screen.log[i].color, ComputerRed) << screen.log[i].text;
         }},
        {"mess", [&](auto& v) { EXPECT_EQ(screen.messCaption, v); }},
        {"score",
         [&](auto& v) {
             std::ostringstream counts;
             counts << screen.scoreWins << ' ' << screen.scoreLosses << ' ' << screen.scoreDraws;
             EXPECT_EQ(counts.str(), v);
         }},
        {"enabled",
         [&](auto& v) {
             std::string flags;
             for (bool on : screen.potEnabled)
                 flags += on ? '1' : '0';
             EXPECT_EQ(flags, v);
         }},
    };
    for (const auto& [key, value] : GetParam().lines) {
        const auto check = keys.find(key);
        ASSERT_NE(check, keys.end()) << "unknown key " << key;
        check->second(value);
    }
    if (expectedLog == std::vector<std::string>{"none"})
        expectedLog.clear();
    else if (expectedLog.empty())
        return;
    EXPECT_EQ(moves(), expectedLog);
}

INSTANTIATE_TEST_SUITE_P(Table, Positions, ::testing::ValuesIn(readPositions()),
                         [](const auto& info) { return info.param.name; });

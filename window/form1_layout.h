#pragma once

#include <array>

// Where everything stands on the main window, in twips (1440 to the inch). Positions
// inside Frame2 and CommandFrame are relative to the frame.
namespace Layout {

struct Rect {
    int left, top, width, height;
};

struct Segment {
    int x1, y1, x2, y2;
};

constexpr int ClientWidth = 7950;
constexpr int ClientHeight = 6960;

constexpr Rect Frame2{60, 5130, 2025, 1755};
constexpr Rect Quitx{90, 1305, 1800, 345};
constexpr Rect Helpx{90, 540, 1800, 345};
constexpr Rect Aboutx{90, 915, 1800, 345};
constexpr Rect Scorex{90, 180, 1800, 345};

constexpr Rect CommandFrame{60, 3300, 2025, 1755};
constexpr Rect Undox{90, 180, 1800, 345};
constexpr Rect Pausex{90, 555, 1800, 345};
constexpr Rect TakeComp{90, 930, 1800, 345};
constexpr Rect GiveHint{90, 1305, 1800, 345};

constexpr Rect Score1{3480, 3720, 3615, 1815};
constexpr Rect MovesList{2145, 3180, 5685, 285};
constexpr Rect Hand{990, 1830, 375, 555};
constexpr Rect StartBeads{105, 3030, 1935, 225};
constexpr Rect Text1{1350, 7200, 564, 360};
constexpr Rect Mess{2160, 2760, 5670, 345};
constexpr Rect Label3{60, 240, 975, 255};
constexpr Rect Label1{6960, 2160, 855, 255};
constexpr Rect Image1{870, 420, 600, 600};
constexpr Rect Image2{6450, 1620, 600, 600};
constexpr Rect Label2{90, 2760, 1935, 285};
constexpr Rect Image4{360, 1950, 480, 480};
constexpr Rect Image3{6540, 330, 480, 480};

// TotalB(1) is the computer's, TotalB(2) the human's; there is no TotalB(0).
constexpr std::array<Rect, 3> TotalB{{{0, 0, 0, 0}, {60, 1110, 645, 435}, {7170, 1110, 645, 435}}};

constexpr int PotSize = 555;
// The lower row's columns are 855 and 870 apart in turn, and some upper pots stand
// 15 to the left of the ones they face: there is no even grid.
constexpr std::array<int, 14> PotLeft{1530, 2385, 3255, 4110, 4980, 5835, 6525,
                                      5835, 4965, 4110, 3240, 2370, 1515, 840};
constexpr std::array<int, 14> PotTop{1785, 1785, 1785, 1785, 1785, 1785, 1050,
                                     285,  285,  285,  285,  285,  285,  1050};

// The letters stand in the band between the rows, above pot i and below its opposite.
constexpr std::array<int, 6> PotNameLeft{1635, 2475, 3360, 4245, 5130, 6000};
constexpr int PotNameTop = 1075;
constexpr int PotNameWidth = 350;
constexpr int PotNameHeight = 429;

// Vertical strokes between the pot columns, 3 pixels wide.
constexpr std::array<int, 5> Line5X{2190, 3075, 3960, 4845, 5730};
constexpr int Line5Top = 240;
constexpr int Line5Bottom = 2440;

// Ovals round the two rows, and round the banks and the letters.
constexpr Rect Shape1Rows{1470, 240, 4995, 2205};
constexpr Rect Shape1Banks{780, 990, 6345, 675};

// The etched rule under the board: a shadow stroke over a white one.
constexpr Segment Line4{48, 2676, 7900, 2676};
constexpr Segment Line3{48, 2688, 7900, 2688};

} // namespace Layout

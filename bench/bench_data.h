// Projects at full capacity for the benchmarks: 999 holes of 48 layers on a 50 m grid, a
// drawing of 999 triangles over them, and limit tables.
#pragma once

#include <memory>
#include <string>

#include "platform/sheet.h"
#include "support/session.h"

namespace tri::bench {

inline constexpr int kHoles = 999;
inline constexpr int kLayers = 48;
inline constexpr int kTriangles = 999;
inline constexpr int kLimitTables = 30;

// A drill-hole workbook in memory; every hole holds the lithologies ore, waste and cover.
std::shared_ptr<const GridSheet> holeWorkbook(int holes, int layers);
// The plan position of hole n (from 1).
double holeX(int n);
double holeY(int n);
// The three holes of triangle t (from 1) of the benchmark network, by number.
std::array<int, 3> triangleHoles(int t);

// Lets a session's create command read an in-memory workbook.
void useWorkbook(Session& s, std::shared_ptr<const GridSheet> sheet);

// Creates a project at `path` with the program's own command.
void createProject(Session& s, std::shared_ptr<const GridSheet> sheet, const std::string& path);

// A folder that lasts as long as the benchmark program.
const TempDir& benchFolder();

// Writes a drawing of `triangles` triangles of lithology "ore" straight into the file, and
// `limits` limit tables beside it (named 1<name>, 2<name>, ...) with their slots.
void writeDrawing(const std::string& path, const std::string& name, int triangles, int limits);

// Opens the project in the session and selects lithology "ore" and the drawing.
void openAndSelect(Session& s, const std::string& path);

// A project file of the bench folder, made from a workbook of 999 holes of 48 layers, with
// one drawing of 999 triangles and `limits` limit tables.
std::string projectWithDrawing(const std::string& file, const std::string& drawing, int limits);

// The project of projectWithDrawing whose drawing "Ag" has reserves spread out of order over
// the colour classes (so that the class sort moves them) and the frame of all holes stored in
// every summary row, as triangle entry stores it: the file the views are timed on.
const std::string& viewsProject();

}  // namespace tri::bench

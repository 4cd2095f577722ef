#include <algorithm>
#include <optional>
#include <vector>

#include "canvas/replay.h"
#include "limit/commands.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/ondayaz.h"
#include "store/project_format.h"
#include "triangles/records.h"
#include "triangles/reserve_math.h"

namespace tri {

namespace {

constexpr int kMaxStudyTriangles = 999;

// A triangle of the drawing as its rows hold it, in metres; holes by their numbers.
struct StoredTriangle {
  std::array<VertexRow, 4> vertices;  // corners 1..3
  double area = 0;
};

// A triangle's values above the limit: cubage, tonnage and reserve in m³ and tons.
struct LimitValues {
  TriangleMeans means;
  double cubage = 0;
  double tonnage = 0;
  double reserve = 0;
};

std::optional<std::string> askLimit(State& s) {
  while (true) {
    std::string text = s.dialogs.inputBox("Enter Limit Grade Value (%) :", "");
    if (!text.empty()) return text;
    if (s.dialogs.messageBox("You Didn't Enter a Value", Buttons::OKCancel, Icon::None, "") ==
        Answer::Cancel) {
      return std::nullopt;
    }
  }
}

std::vector<StoredTriangle> readTriangles(Recordset& drawing) {
  drawing.moveLast();
  const int count = static_cast<int>(drawing.number(field::ucgensay));
  if (count > kMaxStudyTriangles) throwSubscript("limit study triangles", {count});
  std::vector<StoredTriangle> triangles(std::max(count, 0) + 1);
  drawing.moveFirst();
  for (int t = 1; t <= count; ++t) {
    drawing.moveNext();
    for (int k = 1; k <= 3; ++k) {
      if (k > 1) drawing.moveNext();
      triangles[t].vertices[k] = readVertexRow(drawing);
    }
    drawing.moveNext();
    triangles[t].area = drawing.number(field::ill) / 1000;
  }
  return triangles;
}

// Every hole's log, read in one pass over log; the hole list also goes to the state.
Bounded<std::vector<Layer>> readAllLogs(State& s, Database& db) {
  Bounded<std::vector<Layer>> logs{"layers of a hole", kMaxHoles};
  Recordset log = db.openTable(kLogTable);
  Holes& h = s.holes;
  h.sondsay = countHoles(log, HoleListEnd::ZeroXOrPointName);
  log.moveFirst();
  StoredLogReader reader(log);
  for (int i = 1; i <= h.sondsay; ++i) {
    h.eks[i] = log.number(field::eks) / 1000;
    h.eye[i] = log.number(field::eye) / 1000;
    h.isim[i] = log.text(field::isim);
    std::vector<Layer>& layers = logs[i];
    for (const StoredLayer& layer : reader.layersOfCurrentRow()) {
      layers.push_back({layer.lit, layer.ten / 1000, layer.yog / 1000, layer.uz / 1000});
    }
    log.moveNext();
  }
  return logs;
}

// The limit as typed is compared with the tenors as a number; a text that is no number
// fails at the first comparison.
class LimitTenorValue {
 public:
  explicit LimitTenorValue(std::string text) : text_(std::move(text)) {}
  const std::string& text() const { return text_; }
  double value() {
    if (!value_) value_ = toNumber(text_);
    return *value_;
  }

 private:
  std::string text_;
  std::optional<double> value_;
};

LimitValues computeTriangle(const StoredTriangle& t, const Bounded<std::vector<Layer>>& logs,
                            const std::string& lithology, LimitTenorValue& limit) {
  CornerMeans corners;
  for (int k = 1; k <= 3; ++k) {
    const std::vector<Layer>& layers = logs[t.vertices[k].hole];
    // The limit as typed becomes a number at the first layer compared with it.
    if (layers.empty()) continue;
    CornerSums sums;
    addOreLayers(sums, layers, lithology, limit.value());
    corners.length[k] = sums.length;
    corners.tenor[k] = guardedRatio(sums.s1, sums.s2);
    corners.density[k] = guardedRatio(sums.s3, sums.s4);
  }
  LimitValues v;
  v.means = guardedTriangleMeans(corners);
  v.cubage = t.area * v.means.length;
  v.tonnage = v.cubage * v.means.density;
  v.reserve = (v.means.tenor / 100) * v.tonnage;
  return v;
}

void appendStudyRows(Recordset& table, const State& s, const StoredTriangle& t, int number,
                     const LimitValues& v) {
  for (int k = 1; k <= 3; ++k) appendVertexRow(table, t.vertices[k]);
  SummaryRow summary;
  summary.number = number;
  summary.length = v.means.length;
  summary.reserveKt = v.reserve / 1000;
  summary.tenor = v.means.tenor;
  summary.density = v.means.density;
  summary.area = t.area;
  summary.cubage = v.cubage / 1000;
  summary.tonnage = v.tonnage / 1000;
  appendSummaryRow(table, s.frame, summary);
}

// Writes the limit into the first free slot after the drawing's last one, and into the
// state; returns the drawing's number in its lithology's table.
int recordLimitSlot(State& s, Database& db, const std::string& tableName,
                    const LimitTenorValue& limit, double value) {
  const int p = s.project();
  const int l = s.lithology();
  const std::string drawing = s.ui.combo2.text();
  Recordset table = db.openTable(s.ui.combo4.text());
  table.moveLast();
  const int drawings = static_cast<int>(table.number(field::tsay));
  table.moveFirst();
  table.moveNext();
  for (int row = 1; row < drawings && table.text(field::cizim) != drawing; ++row) table.moveNext();
  const int d = static_cast<int>(table.number(field::tsay));

  const int k = s.projects.limsay.get(p, l, d) + 1;
  s.projects.limdeger.checkIndex(p, l, d, k);
  s.projects.limsay(p, l, d) = k;
  table.edit();
  table.set(numbered(field::limten, k), tableName);
  table.set(numbered(field::limdeg, k), ondayaz(value));
  table.update();

  table.moveFirst();
  table.moveNext();
  for (int row = 1; row <= drawings; ++row, table.moveNext()) {
    if (table.text(field::cizim) == s.projects.cizimad.get(p, l, d)) {
      s.projects.limdeger(p, l, d, k) = LimitTenor{value, limit.text()};
    }
  }
  return k;
}

}  // namespace

void Mnlimekle_Click(State& s) {
  if (s.flags.sonkesmod && s.markers.shapesay > 0) removeMarkers(s);
  const std::optional<std::string> text = askLimit(s);
  if (!text) return;
  s.ui.setLabel(1, " Preparing for the Limit Tenor ");

  const std::string drawing = s.ui.combo2.text();
  const std::string lithology = s.ui.combo4.text();
  LimitTenorValue limit(*text);
  Database db = Database::open(s.projectPath());
  std::vector<StoredTriangle> triangles;
  {
    Recordset table = db.openTable(drawing);
    table.moveFirst();
    s.carry.kal = table.number(field::kal) / 1000;
    s.ui.hide("Picture1");
    triangles = readTriangles(table);
  }
  const Bounded<std::vector<Layer>> logs = readAllLogs(s, db);
  std::vector<LimitValues> values(triangles.size());
  for (size_t t = 1; t < triangles.size(); ++t) {
    values[t] = computeTriangle(triangles[t], logs, lithology, limit);
  }

  const std::string tableName = limitTableName(limit.text(), drawing);
  s.ui.combo1.addItem(limit.text());
  WriteBatch batch = db.beginBatch();
  db.createTable(tableName, limitFields());
  {
    Recordset table = db.openTable(tableName);
    table.addNew();
    table.set(field::ucgensay, 0);
    table.update();
    for (size_t t = 1; t < triangles.size(); ++t) {
      appendStudyRows(table, s, triangles[t], static_cast<int>(t), values[t]);
    }
  }
  const int slot = recordLimitSlot(s, db, tableName, limit, limit.value());
  batch.commit();
  db.close();
  s.ui.combo1.setListIndex(slot);
  s.ui.setLabel(1, "Ready");
}

}  // namespace tri

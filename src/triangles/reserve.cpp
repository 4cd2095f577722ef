// The reserve arithmetic of a finished triangle: corner means from the logs of its three
// holes, the triangle's tenor, density, mean ore length, plane area, cubage, tonnage and
// reserve; its summary row; and the same triangle in every limit table of its drawing.
#include <cmath>
#include <vector>

#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/ondayaz.h"
#include "store/project_format.h"
#include "triangles/entry.h"
#include "triangles/records.h"
#include "triangles/reserve_math.h"

namespace tri {

namespace {

// The log of each corner hole, corners 1..3.
using CornerLogs = std::array<std::vector<Layer>, 4>;

CornerLogs readCornerLogs(Database& db, const CornerHoles& holes) {
  CornerLogs logs;
  Recordset log = db.openTable(kLogTable);
  StoredLogReader reader(log);
  for (int k = 1; k <= 3; ++k) {
    log.moveFirst();
    log.move(holes[k] - 1);
    for (const StoredLayer& layer : reader.layersOfCurrentRow()) {
      logs[k].push_back({layer.lit, layer.ten / 1000, layer.yog / 1000, layer.uz / 1000});
    }
  }
  return logs;
}

// Corner means of the layers of the selected lithology; a corner without such a layer
// divides 0 by 0.
CornerMeans baseCornerMeans(const CornerLogs& logs, const std::string& lithology) {
  CornerMeans m;
  for (int k = 1; k <= 3; ++k) {
    CornerSums sums;
    addOreLayers(sums, logs[k], lithology);
    m.length[k] = sums.length;
    m.tenor[k] = divide(sums.s1, sums.s2, "tenor of a corner hole without ore of the lithology");
    m.density[k] =
        divide(sums.s3, sums.s4, "density of a corner hole without ore of the lithology");
  }
  return m;
}

double shoelaceArea(const Entry& e) {
  const double a = (e.kosex[2] - e.kosex[3]) * e.kosey[1];
  const double b = (e.kosex[3] - e.kosex[1]) * e.kosey[2];
  const double c = (e.kosex[1] - e.kosex[2]) * e.kosey[3];
  return std::abs((a + b + c) / 2);
}

// The extent of the triangle from its read-back corners, in chains where a later test is
// only made when the one before did not replace the value. The rounded x3 also stands in
// the chain of the greatest y: that is the rule.
TriangleExtent triangleExtent(const Entry& e) {
  const double x1 = e.readX[1], x2 = e.readX[2], x3 = e.readX[3];
  const double y1 = e.readY[1], y2 = e.readY[2], y3 = e.readY[3];
  const double roundedX3 = roundHalfEven(x3, 0);
  TriangleExtent x;
  x.bx = x1;
  if (x.bx < roundedX3) {
    x.bx = roundedX3;
  } else if (x.bx < x2) {
    x.bx = x2;
  }
  x.kx = x1;
  if (x.kx > roundedX3) {
    x.kx = roundedX3;
  } else if (x.kx > x2) {
    x.kx = x2;
  }
  x.by = y1;
  if (x.by < y3) {
    x.by = roundedX3;
  } else if (x.by < y2) {
    x.by = y2;
  }
  x.ky = y1;
  if (x.ky > y3) {
    x.ky = y3;
  } else if (x.ky > y2) {
    x.ky = y2;
  }
  return x;
}

// The corner means above a limit tenor, guarded against empty corners. The density sums
// S3' and S4' are the run's: they go on adding up by corner position and are never
// cleared, so earlier triangles weigh on a later triangle's limit density.
CornerMeans limitCornerMeans(State& s, const CornerLogs& logs, const std::string& lithology,
                             double limit) {
  CornerMeans m;
  Reserve& r = s.reserve;
  for (int k = 1; k <= 3; ++k) {
    CornerSums sums;
    sums.s3 = r.limitS3[k];
    sums.s4 = r.limitS4[k];
    addOreLayers(sums, logs[k], lithology, limit);
    r.limitS3[k] = sums.s3;
    r.limitS4[k] = sums.s4;
    m.length[k] = sums.length;
    m.tenor[k] = guardedRatio(sums.s1, sums.s2);
    m.density[k] = guardedRatio(sums.s3, sums.s4);
  }
  return m;
}

// The next slot in use from `slot` on, skipping freed slots.
long nextLimitSlot(const State& s, int p, int l, int d, long slot) {
  while (s.projects.limdeger.get(p, l, d, slot).value == 0) ++slot;
  return slot;
}

void appendToLimitTables(State& s, Database& db, const CornerLogs& logs, const CornerHoles& holes,
                         double area, const TriangleExtent& extent) {
  const int p = s.project();
  const int l = s.lithology();
  const int d = s.drawing();
  const std::string lithology = s.ui.combo4.text();
  const std::string drawing = s.ui.combo2.text();
  // The slot number itself skips the freed slots, so a drawing with a freed slot misses its
  // last limits here, as its list does.
  for (long slot = 1; slot <= s.projects.limsay.get(p, l, d); ++slot) {
    slot = nextLimitSlot(s, p, l, d, slot);
    const LimitTenor& limit = s.projects.limdeger.get(p, l, d, slot);
    Recordset table = db.openTable(limitTableName(limit.text, drawing));
    for (int k = 1; k <= 3; ++k) appendVertexRow(table, vertexOfHole(s.holes, holes[k]));
    const CornerMeans corners = limitCornerMeans(s, logs, lithology, limit.value);
    const TriangleMeans means = guardedTriangleMeans(corners);
    SummaryRow v;
    v.number = s.entry.ucgenno;
    v.extent = extent;
    v.length = means.length;
    v.tenor = means.tenor;
    v.density = means.density;
    v.area = area;
    v.cubage = means.length * area / 1000;
    v.tonnage = means.length * area * means.density / 1000;
    v.reserveKt = (means.length * area) * ((means.tenor / 100) * means.density) / 1000;
    appendSummaryRow(table, s.frame, v);
  }
}

}  // namespace

void finishTriangle(State& s, Database& db, const CornerHoles& holes) {
  const CornerLogs logs = readCornerLogs(db, holes);
  const std::string lithology = s.ui.combo4.text();
  const TriangleMeans means = triangleMeans(baseCornerMeans(logs, lithology));

  Entry& e = s.entry;
  Reserve& r = s.reserve;
  const long t = ++e.ucgensira;
  const double area = shoelaceArea(e);
  s.ui.setLabel(13, "Area: " + numberText(roundHalfEven(area, 2)) + " m.kare");
  s.ui.setLabel(7, "Triangle:" + std::to_string(t));
  r.rezervler[t] = means.length * area * ((means.tenor / 100) * means.density);
  // The running total meant to stand here was never kept: each triangle shows its own.
  const double shown = 0 + 0 + r.rezervler[t];
  s.ui.setLabel(12, "Total Reserve (KiloTon): " + numberText(roundHalfEven(shown / 1000, 5)));
  const double perTriangle = (shown / 1000) / e.ucgenno;
  r.rezervoran[t] =
      divide(r.rezervler[t], perTriangle, "reserve ratio of a triangle with no reserve");

  const TriangleExtent extent = triangleExtent(e);
  r.ucgenbx[t] = extent.bx;
  r.ucgenkx[t] = extent.kx;
  r.ucgenby[t] = extent.by;
  r.ucgenky[t] = extent.ky;

  const double volume = means.length * area;
  SummaryRow v;
  v.number = e.ucgenno;
  v.extent = extent;
  v.length = means.length;
  v.reserveKt = r.rezervler[t] / 1000;
  v.tenor = means.tenor;
  v.density = means.density;
  v.area = area;
  v.cubage = volume / 1000;
  v.tonnage = volume * means.density / 1000;
  // The summary row and the rows of every limit table go in as one write; a Fault among
  // them keeps what was written before it.
  WriteBatch batch = db.beginBatch();
  {
    Recordset drawing = db.openTable(s.ui.combo2.text());
    appendSummaryRow(drawing, s.frame, v);
  }
  appendToLimitTables(s, db, logs, holes, area, extent);
  batch.commit();
  e.kosex = {};
  e.kosey = {};
}

}  // namespace tri

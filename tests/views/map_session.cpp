#include "views/map_session.h"

#include <gtest/gtest.h>

#include "platform/store.h"
#include "store/project_format.h"

namespace tri {

namespace {

void writeTriangles(Database& db, const Holes& holes, const std::string& table,
                    const std::vector<FieldDef>& fields,
                    const std::vector<StoredTriangle>& triangles) {
  db.createTable(table, fields);
  Recordset t = db.openTable(table);
  t.addNew();
  t.set("ucgensay", 0);
  t.update();
  for (size_t i = 0; i < triangles.size(); ++i) {
    for (int hole : triangles[i].holes) {
      t.addNew();
      t.set("koordinat1", holes.eks[hole] * 1000);
      t.set("koordinat2", holes.eye[hole] * 1000);
      t.set("say", hole);
      t.update();
    }
    t.addNew();
    t.set("ucgensay", static_cast<int>(i + 1));
    t.set("geneltenor", triangles[i].tenor);
    t.set("genelrezerv", triangles[i].reserve);
    t.update();
  }
}

}  // namespace

void MapSession::showDrawing(const std::vector<StoredTriangle>& triangles,
                             const std::vector<StoredLimit>& limits) {
  {
    Database db = Database::open(path);
    writeTriangles(db, state.holes, "plan1", drawingFields(), triangles);
    Recordset ore = db.openTable("ore");
    ore.addNew();
    ore.set("cizim", "plan1");
    ore.set("tsay", 1);
    for (size_t k = 1; k <= limits.size(); ++k) {
      const StoredLimit& limit = limits[k - 1];
      const std::string table = limitTableName(limit.text, "plan1");
      writeTriangles(db, state.holes, table, limitFields(), limit.triangles);
      ore.set(numbered("limten", static_cast<int>(k)), table);
      ore.set(numbered("limdeg", static_cast<int>(k)), std::stod(limit.text) * 1000);
    }
    ore.update();
  }
  openProject(path);
  state.ui.combo4.setListIndex(1);
  ASSERT_EQ(state.ui.combo4.text(), "ore");
  state.ui.combo2.setListIndex(1);
}

std::vector<CanvasOp> MapSession::drawn(CanvasOp::Kind kind) const {
  std::vector<CanvasOp> ops;
  for (const CanvasOp& op : canvas.log()) {
    if (op.kind == CanvasOp::Kind::Clear) ops.clear();
    if (op.kind == kind) ops.push_back(op);
  }
  return ops;
}

}  // namespace tri

#include "report_plot.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "report/report_project.h"

namespace tri::report {

namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 650;

std::string extensionOf(const std::string& path) {
  const size_t dot = path.rfind('.');
  if (dot == std::string::npos) return "";
  std::string ext = path.substr(dot + 1);
  std::transform(ext.begin(), ext.end(), ext.begin(),
                 [](unsigned char c) { return std::tolower(c); });
  return ext;
}

}  // namespace

void prepareOffscreen() {
  // Qt's notes about its run-time folder and the offscreen plugin are no news to the user.
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
  });
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
}

bool isPlotPath(const std::string& path) {
  const std::string ext = extensionOf(path);
  return ext == "png" || ext == "svg";
}

void writeGradeTonnagePlot(const std::vector<GradeTonnageRow>& rows, const std::string& title,
                           const std::string& path) {
  if (!isPlotPath(path)) throw BadInput("--plot wants a .png or .svg file, not " + path);

  auto* tonnage = new QLineSeries;
  tonnage->setName("Ore tonnage (kt)");
  auto* tenor = new QLineSeries;
  tenor->setName("Mean tenor (%)");
  double maxTonnage = 0, maxTenor = 0;
  for (const GradeTonnageRow& row : rows) {
    tonnage->append(row.cutoff, row.tonnage);
    maxTonnage = std::max(maxTonnage, row.tonnage);
    if (row.meanTenor) {
      tenor->append(row.cutoff, *row.meanTenor);
      maxTenor = std::max(maxTenor, *row.meanTenor);
    }
  }
  tonnage->setPen(QPen(QColor(0, 90, 170), 2.5));
  tenor->setPen(QPen(QColor(200, 60, 20), 2.5));

  auto* chart = new QChart;
  chart->setTitle(QString::fromStdString(title));
  chart->setAnimationOptions(QChart::NoAnimation);
  chart->addSeries(tonnage);
  chart->addSeries(tenor);

  auto* cutoffAxis = new QValueAxis;
  cutoffAxis->setTitleText("Cut-off tenor (%)");
  cutoffAxis->setRange(rows.empty() ? 0 : rows.front().cutoff,
                       rows.empty() ? 1 : std::max(rows.back().cutoff, rows.front().cutoff + 1e-9));
  auto* tonnageAxis = new QValueAxis;
  tonnageAxis->setTitleText("Ore tonnage (kt)");
  tonnageAxis->setRange(0, maxTonnage > 0 ? maxTonnage * 1.05 : 1);
  tonnageAxis->setLabelsColor(QColor(0, 90, 170));
  auto* tenorAxis = new QValueAxis;
  tenorAxis->setTitleText("Mean tenor above cut-off (%)");
  tenorAxis->setRange(0, maxTenor > 0 ? maxTenor * 1.05 : 1);
  tenorAxis->setLabelsColor(QColor(200, 60, 20));
  chart->addAxis(cutoffAxis, Qt::AlignBottom);
  chart->addAxis(tonnageAxis, Qt::AlignLeft);
  chart->addAxis(tenorAxis, Qt::AlignRight);
  tonnage->attachAxis(cutoffAxis);
  tonnage->attachAxis(tonnageAxis);
  tenor->attachAxis(cutoffAxis);
  tenor->attachAxis(tenorAxis);
  chart->legend()->setAlignment(Qt::AlignBottom);
  // The view lays the chart out at its size before it is drawn.
  QChartView view(chart);
  view.setRenderHint(QPainter::Antialiasing);
  view.resize(kWidth, kHeight);
  view.show();
  QApplication::processEvents();

  const QString file = QString::fromStdString(path);
  bool written = true;
  if (extensionOf(path) == "svg") {
    QSvgGenerator svg;
    svg.setFileName(file);
    svg.setSize(QSize(kWidth, kHeight));
    svg.setViewBox(QRect(0, 0, kWidth, kHeight));
    svg.setTitle(QString::fromStdString(title));
    QPainter painter;
    written = painter.begin(&svg);
    if (written) {
      view.render(&painter);
      painter.end();
    }
  } else {
    QImage image(kWidth, kHeight, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    view.render(&painter);
    painter.end();
    written = image.save(file, "PNG");
  }
  if (!written) throw BadInput("cannot write the plot " + path);
}

}  // namespace tri::report

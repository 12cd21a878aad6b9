// Painting a plate of 1,536 positions with three sub-wells each to an image, compared with a
// QGraphicsScene that holds the same items. The argument is the drawing scale in units a
// millimetre.

#include "control/Plate.h"
#include "drawing/PlatePainter.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtPalette.h"
#include "hosts/qt/Units.h"
#include "platform/memory/MemorySite.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

namespace zorvane {

namespace {

String Definition() {
    String text = "PLATE Painted\r\nROWS 32\r\nCOLS 48\r\nROWLABEL A\r\nCOLLABEL 1\r\n"
                  "XPITCH 2.25\r\nYPITCH 2.25\r\nXOVERALL 127.76\r\nYOVERALL 85.48\r\n";
    for (const char* well : {"Drop1\r\nSTYLE ROUND\r\nXOFFSET 12.6\r\nYOFFSET 8.4\r\n",
                             "Drop2\r\nSTYLE CCSHELF\r\nXOFFSET 12.6\r\nYOFFSET 9.4\r\n",
                             "Reservoir\r\nSTYLE SQUARE\r\nXOFFSET 11.6\r\nYOFFSET 8.9\r\n"}) {
        text.append("WELL ").append(well).append(
            "WELLSIZEX 0.7\r\nWELLSIZEY 0.7\r\nRIMWIDTH 0.15\r\nRIMHEIGHT 0.15\r\n");
    }
    return text;
}

struct Drawing {
    explicit Drawing(benchmark::State& state) : plate(site) {
        plate.FixedSize = false;
        plate.DrawingScale(static_cast<Single>(state.range(0)));
        plate.PlateClassText(Definition());
        image = QImage(qRound(ToPixels(site.Width())), qRound(ToPixels(site.Height())),
                       QImage::Format_RGB32);
        image.fill(Qt::white);
    }

    MemorySite site;
    Plate plate;
    QImage image;
};

void PaintingThePlate(benchmark::State& state) {
    Drawing drawing(state);
    ShapeImages images;
    const SystemPalette colors = SystemColors(QApplication::palette());
    for (auto _ : state) {
        QPainter painter(&drawing.image);
        QtCanvas canvas(painter, images, QApplication::font(), drawing.image.rect());
        PaintControl(drawing.plate.Elements(), colors, canvas);
    }
    state.counters["wells"] = drawing.plate.TotalWells();
}
BENCHMARK(PaintingThePlate)->Arg(60)->Arg(150)->Unit(benchmark::kMicrosecond);

void AddShape(QGraphicsScene& scene, const Shape& shape, const SystemPalette& colors) {
    if (!shape.visible) return;
    const QPen pen = shape.border ? QPen(Qt::black, 1) : QPen(Qt::NoPen);
    const QBrush brush(ToColor(Resolve(shape.fill, colors)));
    if (shape.kind == ShapeKind::Circle) {
        scene.addEllipse(ToPixels(CentredSquare(shape.box)), pen, brush);
    } else {
        scene.addRect(ToPixels(shape.box), pen, brush);
    }
}

void AddLabel(QGraphicsScene& scene, const Label& label, const QFont& font) {
    if (!label.visible || label.caption.empty()) return;
    scene.addSimpleText(QString::fromStdString(label.caption), font)
        ->setPos(ToPixels(label.box).topLeft());
}

void FillScene(QGraphicsScene& scene, const Surface& surface) {
    const SystemPalette colors = SystemColors(QApplication::palette());
    QFont font = QApplication::font();
    font.setPixelSize(qRound(ToPixels(kFontHeight)));
    scene.addRect(ToPixels(surface.fraPlate.box), QPen(Qt::gray, 1),
                  ToColor(Resolve(surface.fraPlate.back, colors)));
    for (const PaintRun& run : surface.paintOrder) {
        for (Integer i = 0; i < run.count; ++i) {
            const auto element = static_cast<std::size_t>(run.first + i);
            if (run.kind == PaintRun::Kind::Legends) {
                AddLabel(scene, surface.lblWell[element], font);
                continue;
            }
            AddShape(scene, surface.WellRim[element], colors);
            AddShape(scene, surface.WellBottom[element], colors);
            AddLabel(scene, surface.WellText[element], font);
        }
    }
}

void PaintingAScene(benchmark::State& state) {
    Drawing drawing(state);
    QGraphicsScene scene(drawing.image.rect());
    FillScene(scene, drawing.plate.Elements());
    for (auto _ : state) {
        QPainter painter(&drawing.image);
        painter.setRenderHint(QPainter::Antialiasing);
        scene.render(&painter);
    }
    state.counters["items"] = static_cast<double>(scene.items().size());
}
BENCHMARK(PaintingAScene)->Arg(60)->Arg(150)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace zorvane

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

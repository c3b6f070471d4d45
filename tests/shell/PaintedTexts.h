// SPDX-License-Identifier: MIT
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QRectF>
#include <QString>

#include <vector>

namespace korvel::testing
{

/// A piece of text as it was painted: where its baseline begins, how wide and how high it is.
struct PaintedText {
    QString text;
    QPointF at;
    double width{};
    int letters{}; ///< pixels
};

/// A sheet of white paper that keeps what is written and ruled on it, in its own pixels.
class PaintedTexts : public QPaintDevice
{
public:
    explicit PaintedTexts(QSize size) : m_size(size) {}

    const std::vector<PaintedText>& texts() const { return m_engine.texts; }
    const std::vector<QLineF>& lines() const { return m_engine.lines; }
    /// The texts from left to right with a blank between them, for each height at which there are
    /// any, from the top.
    std::vector<std::string> rows() const;

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    struct Engine : QPaintEngine {
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        Type type() const override { return Picture; } // figures stay texts
        void updateState(const QPaintEngineState&) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
        void drawLines(const QLineF* drawn, int count) override;
        void drawTextItem(const QPointF& at, const QTextItem& item) override;

        std::vector<PaintedText> texts;
        std::vector<QLineF> lines;
    };

    QSize m_size;
    mutable Engine m_engine;
};

} // namespace korvel::testing

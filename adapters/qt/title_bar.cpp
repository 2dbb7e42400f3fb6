#include "adapters/qt/title_bar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionTitleBar>

#include "adapters/qt/panel_colors.h"

namespace {

constexpr double Cross_Reach_px = 3.5;
constexpr double Cross_Stroke_px = 1.6;

struct Window_Colors {
  QColor ground, edge, letter;
};

constexpr Window_Colors Active{Panel_Button, Panel_Chosen, Panel_Letter};
constexpr Window_Colors Inactive{Panel_Plate, Panel_Edge, Panel_Legend};

void Paint_Close_Button(const QRect& place, const QStyleOptionTitleBar& bar, const QColor& letter,
                        QPainter& painter) {
  if (bar.activeSubControls.testFlag(QStyle::SC_TitleBarCloseButton)) {
    painter.fillRect(place, bar.state.testFlag(QStyle::State_Sunken) ? Panel_Well : Panel_Chosen);
  }
  const QPointF middle = QRectF(place).center();
  const QPointF down(Cross_Reach_px, Cross_Reach_px);
  const QPointF up(Cross_Reach_px, -Cross_Reach_px);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(letter, Cross_Stroke_px));
  painter.drawLine(middle - down, middle + down);
  painter.drawLine(middle - up, middle + up);
}

}  // namespace

void Paint_Title_Bar(const QStyle& style, const QStyleOptionTitleBar& bar, QPainter& painter,
                     const QWidget* widget) {
  const auto part = [&](QStyle::SubControl control) {
    return style.subControlRect(QStyle::CC_TitleBar, &bar, control, widget);
  };
  const Window_Colors& colors = bar.titleBarState & QStyle::State_Active ? Active : Inactive;
  painter.save();
  painter.fillRect(bar.rect, colors.edge);
  painter.fillRect(bar.rect.adjusted(1, 1, -1, 0), colors.ground);
  bar.icon.paint(&painter, part(QStyle::SC_TitleBarSysMenu));
  painter.setPen(colors.letter);
  painter.drawText(part(QStyle::SC_TitleBarLabel), Qt::AlignCenter, bar.text);
  Paint_Close_Button(part(QStyle::SC_TitleBarCloseButton), bar, colors.letter, painter);
  painter.restore();
}

void Paint_Window_Edge(const QStyleOption& window, QPainter& painter) {
  const Window_Colors& colors = window.state.testFlag(QStyle::State_Active) ? Active : Inactive;
  painter.fillRect(window.rect, colors.edge);
  painter.fillRect(window.rect.adjusted(1, 1, -1, -1), colors.ground);
}

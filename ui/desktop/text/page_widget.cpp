#include "ui/desktop/text/page_widget.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/keys.h"

namespace lectern::desktop {

namespace {

constexpr int kBoxMargin = 14;        // around a text in a box
constexpr int kPageEnd = 20;          // above and below the text of a page
constexpr int kBesideColumn = 16;     // at the least, on each side
constexpr double kHeadingSize = 1.3;  // of the text's size
constexpr double kHeadingRoom = 2.6;

}  // namespace

// The title in the face of the text, and the detail after it on the same line.
class PageHeading : public QLabel {
 public:
  explicit PageHeading(QWidget* parent) : QLabel(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

  void Set(const QString& title, const QString& detail) {
    if (title == title_ && detail == detail_) return;
    title_ = title;
    detail_ = detail;
    setText(detail.isEmpty() ? title : title + QStringLiteral(", ") + detail);
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int kGap = 14;
    QPainter painter(this);
    QFont face = parentWidget()->font();
    face.setPointSizeF(face.pointSizeF() * kHeadingSize);
    const QFontMetrics metrics(face);
    const QString title = metrics.elidedText(title_, Qt::ElideRight, width());
    const int baseline = (height() + metrics.ascent() - metrics.descent()) / 2 + height() / 10;
    const QColor ink = palette().color(QPalette::Text);
    painter.setFont(face);
    painter.setPen(ink);
    painter.drawText(0, baseline, title);
    const int begin = metrics.horizontalAdvance(title) + kGap;
    const QFont small = InPixels(OwnFont(), kSecondaryPixels);
    painter.setFont(small);
    painter.setPen(MutedColor(ink, palette().color(QPalette::Base)));
    painter.drawText(begin, baseline,
                     QFontMetrics(small).elidedText(detail_, Qt::ElideRight, std::max(width() - begin, 0)));
  }

 private:
  QString title_;
  QString detail_;
};

// Covers the lines at an edge of the page that would be cut in half.
class PageFade : public QWidget {
 public:
  PageFade(QWidget* parent, Qt::Edge edge) : QWidget(parent), edge_(edge) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QColor page = palette().color(QPalette::Base);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(edge_ == Qt::TopEdge ? 0 : 1, page);
    page.setAlpha(0);
    gradient.setColorAt(edge_ == Qt::TopEdge ? 1 : 0, page);
    QPainter(this).fillRect(rect(), gradient);
  }

 private:
  Qt::Edge edge_;
};

PageWidget::PageWidget(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setCursorWidth(0);
  // The width of the text must not depend on its length.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PageWidget::BecomeThePage() {
  setProperty(kPageProperty, true);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  heading_ = new PageHeading(this);
  above_ = new PageFade(this, Qt::TopEdge);
  below_ = new PageFade(this, Qt::BottomEdge);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { ShowFades(); });
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { ShowFades(); });
}

void PageWidget::SetHeading(const QString& title, const QString& detail) { heading_->Set(title, detail); }

void PageWidget::SetColumn(int width, int gutter) {
  if (std::pair(column_, gutter_) == std::pair(width, gutter)) return;
  column_ = width;
  gutter_ = gutter;
  Arrange();
}

int PageWidget::TextMargin() const { return heading_ == nullptr ? kBoxMargin : 0; }

// The scroll bar stays at the edge of the page, so that the column is in the middle of the rest.
void PageWidget::Arrange() {
  if (heading_ == nullptr || column_ == 0) return;
  const int bar = verticalScrollBar()->sizeHint().width();
  const int room = width() - bar;
  const int text = std::clamp(room - 2 * kBesideColumn, 0, column_);
  // The numbers belong to the margin, so that the words are in the middle rather than both.
  const int left =
      std::clamp((width() - text - gutter_) / 2, std::min(kBesideColumn, room), std::max(room - text, 0));
  const auto above = static_cast<int>(std::lround(QFontMetricsF(font()).height() * kHeadingRoom));
  setViewportMargins(left, above, std::max(room - left - text, 0), kPageEnd / 2);
  const int words = left + gutter_;
  heading_->setGeometry(words, 0, std::max(room - words, 0), above);
  const QRect page = viewport()->geometry();
  const int line = QFontMetrics(font()).lineSpacing();
  above_->setGeometry(page.left(), page.top(), page.width(), line / 2);
  below_->setGeometry(page.left(), page.bottom() + 1 - line, page.width(), line);
  ShowFades();
}

QRect PageWidget::ReadablePart() const {
  QRect part = viewport()->rect();
  if (heading_ != nullptr) part.adjust(0, above_->height() / 2, 0, -below_->height() / 2);
  return part;
}

void PageWidget::ShowFades() {
  above_->setVisible(verticalScrollBar()->value() > 0);
  below_->setVisible(verticalScrollBar()->value() < verticalScrollBar()->maximum());
}

PageWidget::Place PageWidget::TopPlace() const {
  const QTextCursor top = cursorForPosition(QPoint(viewport()->width() / 2, 0));
  return {top.position(), -cursorRect(top).top()};
}

void PageWidget::ScrollTo(const Place& place) {
  QTextCursor at(document());
  at.setPosition(std::min(place.position, document()->characterCount() - 1));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(at).top() + place.above);
}

QRect PageWidget::PlaceOf(const QTextBlock& block) const {
  const QRectF place = document()->documentLayout()->blockBoundingRect(block);
  return place.toAlignedRect().translated(0, -verticalScrollBar()->value());
}

void PageWidget::Mark(const QTextBlock& block) {
  marked_ = QTextCursor(block);
  viewport()->update();
}

void PageWidget::paintEvent(QPaintEvent* event) {
  QTextEdit::paintEvent(event);
  if (marked_.isNull() || marked_.document() != document()) return;
  constexpr int kWidth = 3;
  const QRect place = PlaceOf(marked_.block());
  QPainter painter(viewport());
  painter.fillRect(QRect(0, place.top(), kWidth, place.height()), palette().color(QPalette::Highlight));
}

// The margins beside the column scroll like the column.
bool PageWidget::event(QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
  }
  const bool done = QTextEdit::event(event);
  if (event->type() == QEvent::Resize) Arrange();
  return done;
}

void PageWidget::changeEvent(QEvent* event) {
  QTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) Arrange();
}

// Lines may break elsewhere; what is at the top stays there.
void PageWidget::resizeEvent(QResizeEvent* event) {
  const bool breaks_anew =
      event->size().width() != event->oldSize().width() && verticalScrollBar()->value() > 0;
  const Place place = breaks_anew ? TopPlace() : Place{};
  QTextEdit::resizeEvent(event);
  if (breaks_anew) ScrollTo(place);
}

void PageWidget::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return QTextEdit::wheelEvent(event);
  constexpr int kNotch = 120;
  turned_ += event->angleDelta().y();
  const int steps = turned_ / kNotch;
  turned_ %= kNotch;
  event->accept();
  if (steps != 0) wants_larger(steps);
}

// If nothing is selected, selects the paragraph under the mouse for the menu.
void PageWidget::contextMenuEvent(QContextMenuEvent* event) {
  const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
  const QString words = WordsAt(by_mouse ? cursorForPosition(event->pos()) : textCursor());
  if (by_mouse && !textCursor().hasSelection()) SelectParagraphAt(event->pos());
  QMenu* const menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (quote) {
    const QList<QAction*> actions = menu->actions();
    auto* const action = new QAction(tr("Copy with &Reference"), menu);
    action->setShortcut(QuoteKey());
    action->setEnabled(can_quote());
    connect(action, &QAction::triggered, this, [this] { quote(); });
    menu->insertAction(actions.size() > 1 ? actions[1] : nullptr, action);
  }
  if (!words.isEmpty()) add_to_menu(*menu, words);
  menu->popup(by_mouse ? event->globalPos() : viewport()->mapToGlobal(cursorRect().bottomLeft()));
}

// What is selected there, if it is a part of one paragraph, or the word.
QString PageWidget::WordsAt(QTextCursor place) const {
  const QTextCursor selection = textCursor();
  const bool is_part = selection.selectedText().size() < place.block().length() - 1;
  const bool is_meant = selection.hasSelection() && is_part &&
                        place.position() >= selection.selectionStart() &&
                        place.position() <= selection.selectionEnd();
  if (is_meant) {
    place = selection;
  } else {
    place.select(QTextCursor::WordUnderCursor);
  }
  const QString words = place.selectedText().trimmed();
  const bool has_letters = std::any_of(words.begin(), words.end(), [](QChar c) { return c.isLetter(); });
  return has_letters && !words.contains(QChar::ParagraphSeparator) ? words : QString();
}

void PageWidget::SelectParagraphAt(const QPoint& point) {
  QTextCursor cursor = cursorForPosition(point);
  const QRectF paragraph = document()->documentLayout()->blockBoundingRect(cursor.block());
  if (point.y() + verticalScrollBar()->value() > paragraph.bottom()) return;
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

}  // namespace lectern::desktop

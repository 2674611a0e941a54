#include "tests/monkey/Picks.h"
#include "tests/monkey/QtMonkeyForm.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QStyleFactory>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace quillgrid::monkey {

namespace {

QString TextFor(std::uint32_t pick) {
    return QString::fromStdString(AnyText(pick));
}

void SendKey(QtMonkeyForm& form, int key, const QString& text, Qt::KeyboardModifiers held) {
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held, text);
        if (QWidget* target = form.KeyTarget()) QApplication::sendEvent(target, &event);
    }
}

void TypeAct(QtMonkeyForm& form, const Step& step) {
    const char32_t character = AnyCharacter(step.A);
    const QString text = character > 0x10FFFF ? QString(QChar(0xDC00)) : QString::fromUcs4(&character, 1);
    SendKey(form, character < 128 ? text.toUpper().at(0).unicode() : 0, text, {});
}

void KeyAct(QtMonkeyForm& form, const Step& step) {
    struct QtKey {
        int Code;
        const char* Text;
    };
    constexpr QtKey Keys[] = {
        {Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"},  {Qt::Key_Escape, "\x1b"}, {Qt::Key_Backspace, "\b"},
        {Qt::Key_Delete, ""},   {Qt::Key_Tab, "\t"},    {Qt::Key_Backtab, ""},    {Qt::Key_Down, ""},
        {Qt::Key_Up, ""},       {Qt::Key_Left, ""},     {Qt::Key_Right, ""},      {Qt::Key_Home, ""},
        {Qt::Key_End, ""},      {Qt::Key_PageDown, ""}, {Qt::Key_PageUp, ""},     {Qt::Key_F4, ""},
        {Qt::Key_Insert, ""},   {Qt::Key_Space, " "},   {Qt::Key_A, "\x01"},      {Qt::Key_C, "\x03"},
        {Qt::Key_V, "\x16"},    {Qt::Key_X, "\x18"},    {Qt::Key_Z, "\x1a"},      {Qt::Key_Alt, ""},
        {Qt::Key_Menu, ""},     {Qt::Key_Multi_key, ""}};
    constexpr Qt::KeyboardModifiers Held[] = {Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                                              Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};
    const QtKey& key = Keys[step.A % std::size(Keys)];
    SendKey(form, key.Code, QString::fromLatin1(key.Text), Held[step.B % std::size(Held)]);
}

void ComposeAct(QtMonkeyForm& form, const Step& step) {
    QInputMethodEvent event(step.A % 2 == 0 ? TextFor(step.B) : QString(), {});
    if (step.C % 2 == 0)
        event.setCommitString(TextFor(step.C / 2), -static_cast<int>(step.A % 3),
                              static_cast<int>(step.A % 2));
    if (QWidget* target = form.KeyTarget()) QApplication::sendEvent(target, &event);
}

void SendMouse(QtMonkeyForm& form, QEvent::Type type, std::uint32_t pick, Qt::MouseButton button) {
    const QSize size = form.Widget()->size();
    const Point point = AnyPoint(pick, {size.width(), size.height()});
    const QPoint within(point.X % 5000, point.Y % 5000);
    QWidget* target = form.Widget()->childAt(within);
    if (!target) target = form.Widget();
    const QPoint local = target->mapFrom(form.Widget(), within);
    const bool held = type != QEvent::MouseButtonRelease && button != Qt::NoButton;
    QMouseEvent event(type, local, form.Widget()->mapToGlobal(within), button, held ? button : Qt::NoButton,
                      {});
    QApplication::sendEvent(target, &event);
}

Qt::MouseButton ButtonFor(std::uint32_t pick) {
    return pick % 16 == 15 ? Qt::RightButton : pick % 8 == 7 ? Qt::MiddleButton : Qt::LeftButton;
}

void PressAct(QtMonkeyForm& form, const Step& step) {
    if (ButtonFor(step.B) != Qt::RightButton)
        SendMouse(form, QEvent::MouseButtonPress, step.A, ButtonFor(step.B));
    if (form.Widget() && step.C % 2 == 0)
        SendMouse(form, QEvent::MouseButtonRelease, step.A, ButtonFor(step.B));
}

void ReleaseAct(QtMonkeyForm& form, const Step& step) {
    SendMouse(form, QEvent::MouseButtonRelease, step.A, ButtonFor(step.B));
}

void MoveAct(QtMonkeyForm& form, const Step& step) {
    SendMouse(form, QEvent::MouseMove, step.A, step.B % 2 == 0 ? Qt::NoButton : Qt::LeftButton);
}

void DoubleClickAct(QtMonkeyForm& form, const Step& step) {
    SendMouse(form, QEvent::MouseButtonDblClick, step.A, Qt::LeftButton);
}

void WheelAct(QtMonkeyForm& form, const Step& step) {
    const int turn = static_cast<int>(step.A % 500) - 250;
    QWheelEvent event(QPointF(20, 20), form.Widget()->mapToGlobal(QPointF(20, 20)), {}, {0, turn},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(form.Widget(), &event);
}

void DropAct(QtMonkeyForm& form, const Step& step) {
    QMimeData data;
    data.setText(TextFor(step.B));
    const QPoint point(static_cast<int>(step.A % 400), static_cast<int>(step.C % 260));
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(form.Widget(), &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, {});
    if (form.Widget()) QApplication::sendEvent(form.Widget(), &drop);
}

void ClipboardAct(QtMonkeyForm& form, const Step& step) {
    QApplication::clipboard()->setText(TextFor(step.A));
    if (step.B % 2 == 0) SendKey(form, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
}

void FocusAct(QtMonkeyForm& form, const Step& step) {
    const auto others = form.Window().findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    if (step.A % 4 != 0) return form.Widget()->setFocus();
    if (!others.isEmpty()) others[static_cast<qsizetype>(step.B) % others.size()]->setFocus();
}

void WindowAct(QtMonkeyForm& form, const Step& step) {
    QWidget& window = form.Window();
    switch (step.A % 14) {
    case 0: window.hide(); return;
    case 1: window.close(); return;
    case 2: form.Widget()->setVisible(step.B % 2 == 0); return;
    case 3: form.Widget()->setEnabled(step.B % 2 == 0); return;
    case 4: form.OtherWindow().setVisible(step.B % 2 == 0); return;
    default:
        window.show();
        window.activateWindow();
        if (form.Widget()) form.Widget()->setEnabled(true);
        if (form.Widget()) form.Widget()->show();
    }
}

void ReparentAct(QtMonkeyForm& form, const Step& step) {
    QWidget& to = step.A % 3 == 0 ? form.OtherWindow() : form.Window();
    if (form.Reparenting) return; // a layout must not lose the widget that it is just taking in
    form.Reparenting = true;
    if (step.B % 8 == 0)
        form.Widget()->setParent(nullptr);
    else
        to.layout()->addWidget(form.Widget());
    form.Reparenting = false;
}

void ResizeAct(QtMonkeyForm& form, const Step& step) {
    const Size size = AnySize(step.A);
    form.Widget()->resize(size.Width % 5000, size.Height % 5000);
}

void LookAct(QtMonkeyForm& form, const Step& step) {
    QWidget& widget = *form.Widget();
    switch (step.A % 6) {
    case 0: return widget.setPalette(QPalette(QColor(step.B % 2 == 0 ? Qt::black : Qt::white)));
    case 1: {
        QFont font = widget.font();
        font.setPixelSize(static_cast<int>(5 + step.B % 40));
        return widget.setFont(font);
    }
    case 2: return widget.setLayoutDirection(step.B % 2 == 0 ? Qt::LeftToRight : Qt::RightToLeft);
    case 3:
        return widget.setLocale(QLocale(step.B % 2 == 0 ? QStringLiteral("en_US") : QStringLiteral("de_DE")));
    case 4:
        return widget.setStyleSheet(step.B % 2 == 0 ? QString()
                                                    : QStringLiteral("QLineEdit { color: red; }"));
    default: QApplication::setPalette(QPalette(QColor(step.B % 2 == 0 ? 40 : 230, 220, 200)));
    }
}

void CallAct(QtMonkeyForm& form, const Step& step) {
    Quillgrid& grid = form.Widget()->grid();
    const auto count = static_cast<std::uint32_t>(grid.Cells().Count());
    const auto cell = count == 0 ? nullptr : grid.Cells().At(1 + step.B % count);
    switch (step.A % 15) {
    case 0: return grid.Refresh();
    case 1: return grid.Undo();
    case 2: return grid.Update();
    case 3: return grid.AddNew();
    case 4: return grid.SetShowCaption(step.B % 2 == 0);
    case 5: return grid.SetStyle(static_cast<StyleConstants>(step.B % 2));
    case 6: return grid.SetSorted(step.B % 2 == 0);
    case 7: form.Widget()->commitEdit(); return;
    case 8: return form.Widget()->showMessage(TextFor(step.B));
    case 9: return grid.SetLanguage(static_cast<LanguageConstants>(step.B % 7));
    case 10: return cell ? cell->SetVisible(step.C % 2 == 0) : grid.Clear();
    case 11: return cell ? cell->SetValue(AnyValue(step.C)) : grid.Refresh();
    case 12: return grid.SetAllowWrap(step.B % 2 == 0);
    case 13: return form.Widget()->setTabPolicy(static_cast<qt::QuillgridWidget::TabPolicy>(step.B % 3));
    default: return cell ? cell->SetFocus() : grid.Refresh();
    }
}

void AddAct(QtMonkeyForm& form, const Step& step) {
    Quillgrid& grid = form.Widget()->grid();
    if (grid.Cells().Count() > 40) return grid.Clear();
    grid.Add({.Index = static_cast<std::int32_t>(step.C % 9),
              .Caption = Variant(AnyText(step.B)),
              .Value = AnyValue(step.C),
              .CellTemplate = static_cast<CellTemplateConstants>(step.A % 25)});
    if (step.B % 2 == 0) grid.Refresh();
}

void RemoveAct(QtMonkeyForm& form, const Step& step) {
    auto& cells = form.Widget()->grid().Cells();
    if (step.B % 12 == 0) return form.Widget()->grid().Clear();
    if (cells.Count() > 0)
        cells.Remove(1 + static_cast<std::int32_t>(step.A % static_cast<std::uint32_t>(cells.Count())));
}

/// A message box, say, that the user answers at once. (Its loop would delete what is to be deleted later.)
void ModalAct(QtMonkeyForm& form, const Step& step) {
    if (form.Doomed) return;
    QDialog dialog(step.A % 2 == 0 ? &form.Window() : nullptr);
    QTimer::singleShot(0, &dialog, &QDialog::reject);
    dialog.exec();
}

void EventsAct(QtMonkeyForm&, const Step&) {
    QApplication::processEvents();
}

void GrabAct(QtMonkeyForm& form, const Step&) {
    const QSize size = form.Widget()->size();
    if (size.width() <= 2000 && size.height() <= 2000) form.Widget()->grab();
}

void CancelAct(QtMonkeyForm& form, const Step& step) {
    form.CancelErrors = step.A % 2 == 0;
    form.CancelValues = step.A % 8 == 0;
}

/// Qt itself still looks at a widget that it is hiding or resizing.
void DestroyAct(QtMonkeyForm& form, const Step& step) {
    if (step.A % 2 == 1 && form.MayDelete) {
        delete form.Widget();
    } else {
        form.Doomed = true;
        form.Widget()->deleteLater();
    }
}

void TerminateAct(QtMonkeyForm& form, const Step& step) {
    if (step.A % 4 == 0) form.Widget()->grid().Terminate();
}

void CreateAct(QtMonkeyForm& form, const Step& step) {
    form.Create(step);
}

void ArmAct(QtMonkeyForm& form, const Step& step);

struct Deed {
    const char* Name;
    std::uint32_t Weight;
    std::uint32_t HandlerWeight;
    void (*Run)(QtMonkeyForm&, const Step&);
};

const Deed Deeds[] = {{"type", 120, 2, TypeAct},
                      {"key", 140, 4, KeyAct},
                      {"compose", 30, 1, ComposeAct},
                      {"press", 90, 3, PressAct},
                      {"release", 20, 1, ReleaseAct},
                      {"move", 30, 1, MoveAct},
                      {"double-click", 8, 1, DoubleClickAct},
                      {"wheel", 20, 1, WheelAct},
                      {"drop", 10, 1, DropAct},
                      {"clipboard", 14, 1, ClipboardAct},
                      {"focus", 70, 5, FocusAct},
                      {"window", 20, 4, WindowAct},
                      {"reparent", 3, 2, ReparentAct},
                      {"resize", 10, 2, ResizeAct},
                      {"look", 10, 3, LookAct},
                      {"call", 60, 14, CallAct},
                      {"add", 20, 4, AddAct},
                      {"remove", 10, 10, RemoveAct},
                      {"modal", 2, 6, ModalAct},
                      {"events", 30, 2, EventsAct},
                      {"grab", 16, 1, GrabAct},
                      {"arm", 130, 2, ArmAct},
                      {"cancel", 10, 1, CancelAct},
                      {"destroy", 1, 4, DestroyAct},
                      {"terminate", 1, 1, TerminateAct},
                      {"create", 5, 0, CreateAct}};

void ArmAct(QtMonkeyForm& form, const Step& step) {
    static const Repertoire inHandlers = [] {
        Repertoire acts;
        for (const Deed& deed : Deeds)
            acts.push_back({deed.Name, deed.HandlerWeight});
        return acts;
    }();
    form.Arm(step.A, {ChooseAct(inHandlers, step.B), step.C, Mixed(step.C, 1), Mixed(step.C, 2)});
}

} // namespace

Repertoire QtMonkeyForm::Acts() {
    Repertoire acts;
    for (const Deed& deed : Deeds)
        acts.push_back({deed.Name, deed.Weight});
    return acts;
}

void QtMonkeyForm::Act(const Step& step) {
    if (!widget_) return;
    const struct Depth {
        int& Count;
        explicit Depth(int& count) : Count(count) { ++Count; }
        ~Depth() { --Count; }
    } deeper(depth_);
    const auto run = Deeds[step.Act].Run;
    if (depth_ == 1)
        MayDelete = run == TypeAct || run == KeyAct || run == PressAct || run == CallAct || run == DestroyAct;
    if (run == ModalAct || run == EventsAct || run == WindowAct || run == ResizeAct || run == ReparentAct)
        MayDelete = false;
    Deeds[step.Act].Run(*this, step);
}

} // namespace quillgrid::monkey

#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace quillgrid::bench {

inline constexpr int FormWidth = 400;
inline constexpr int FormHeight = 600;
inline constexpr int LabelColumn = 140;
inline constexpr int GroupsOfForm = 10;

/// The texts of one form: captions in no order, values that hold the order of the rows.
struct FormTexts {
    explicit FormTexts(int rows);

    std::vector<QString> Captions;
    std::vector<QString> Values;
    std::vector<std::string> Utf8Captions;
    std::vector<std::string> Utf8Values;
};

/// Something that shows rows of a caption and a value, in a window of its own.
class PaintSubject {
public:
    virtual ~PaintSubject() = default;

    virtual QWidget& Window() = 0;
    virtual void Fill(const FormTexts& texts) = 0;
    /// How many rows are seen at once.
    virtual int VisibleRows() = 0;
    virtual void ScrollTo(int row) = 0; ///< 0-based
    virtual void ChangeValue(int row, const QString& text) = 0;
    /// Whole rows by their captions, or back to the order of adding.
    virtual void Sort(bool byCaption) = 0;
    /// Hides or shows the first tenth of the rows.
    virtual void Fold(bool collapsed) = 0;
};

enum class LabelColumnWidth : std::uint8_t { Fixed, Automatic };

std::unique_ptr<PaintSubject> MakeQuillgrid(LabelColumnWidth width = LabelColumnWidth::Fixed,
                                            bool grouped = false);
std::unique_ptr<PaintSubject> MakeTable();
/// A scrolled form layout of labels and line edits; it neither sorts nor folds.
std::unique_ptr<PaintSubject> MakeFormLayout();
/// Draws and scrolls the texts of a table and nothing else.
std::unique_ptr<PaintSubject> MakeHandPainter();

} // namespace quillgrid::bench

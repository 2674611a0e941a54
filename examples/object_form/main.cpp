// A form bound to an object: drag the slider and the form follows, type into the form and the slider moves.
//
//   object_form [--picture FILE.png | --smoke]
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/ObjectBinding.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QSlider>
#include <QVBoxLayout>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

class SliderWindow : public QWidget {
public:
    SliderWindow() : slider_(new QSlider(Qt::Horizontal)), form_(new QuillgridWidget) {
        setWindowTitle(QStringLiteral("A slider and its properties"));
        auto* column = new QVBoxLayout(this);
        column->addWidget(slider_);
        column->addWidget(form_, 1);
        slider_->setRange(0, 100);
        slider_->setValue(40);
        slider_->setTickPosition(QSlider::TicksBelow);
        slider_->setTickInterval(10);
        fillForm();
        resize(420, 320);
    }

    /// What the program is about, tried without a user.
    bool works() {
        slider_->setValue(64);
        const bool follows = cell("value").Text() == "64";
        cell("value").SetValue(500);
        return follows && binding_->submit() && slider_->value() == 100 && cell("value").Text() == "100";
    }

private:
    void fillForm() {
        binding_ = new ObjectBinding(form_, form_);
        binding_->setObject(slider_);
        binding_->addCells({QStringLiteral("value"), QStringLiteral("minimum"), QStringLiteral("maximum"),
                            QStringLiteral("singleStep"), QStringLiteral("pageStep"),
                            QStringLiteral("tickPosition"), QStringLiteral("tickInterval"),
                            QStringLiteral("tracking"), QStringLiteral("invertedAppearance"),
                            QStringLiteral("sliderDown")});
        connect(binding_, &FormBinding::refused, form_,
                [this](Cell*, FormBinding::Refusal, const QString& text) {
                    form_->showMessage(tr("“%1” is not possible here.").arg(text));
                });
        form_->grid().SetLanguage(qglgEnglish);
        form_->grid().SetBorderStyle(qgbsNone);
        form_->grid().Update();
    }

    Cell& cell(const char* key) { return *form_->grid().Cells().Item(key); }

    QSlider* slider_;
    QuillgridWidget* form_;
    ObjectBinding* binding_ = nullptr;
};

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    SliderWindow window;
    return example.Run(window, [&window] { return window.works(); });
}

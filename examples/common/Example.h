#pragma once

#include <QApplication>

#include <functional>

namespace quillgrid::examples {

/// The application of an example: it shows a window, draws it into a file (`--picture FILE.png`) or tries
/// what the example is about without a user (`--smoke`).
class Example {
public:
    Example(int& argc, char** argv);

    /// What `main` returns. `works` does what a user would do and says whether it went well.
    int Run(QWidget& window, const std::function<bool()>& works);

private:
    QApplication application_;
};

} // namespace quillgrid::examples

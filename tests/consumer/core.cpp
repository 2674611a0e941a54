// Reads what a user typed and the exception of a published member, without a control or a window.
#include <quillgrid/base/ControlError.h>
#include <quillgrid/base/Version.h>
#include <quillgrid/euro/QGEuro.h>
#include <quillgrid/locale/Coercion.h>
#include <quillgrid/locale/Format.h>

#include <cstdio>

#if QUILLGRID_VERSION_NUMBER < QUILLGRID_VERSION_OF(0, 1, 0)
#error "the version of the headers is not the one asked for"
#endif

int main() {
    const quillgrid::Locale& german = quillgrid::BuiltInLocale("de-DE");
    const auto fee = quillgrid::ToCurrency(quillgrid::Variant("1.250,50"), german);
    if (!fee) return 1;
    const std::string shown = quillgrid::Format(*fee, "#,##0.00", german);
    std::printf("%s %s\n", QUILLGRID_VERSION, shown.c_str());
    return shown == "1.250,50" ? 0 : 1;
}

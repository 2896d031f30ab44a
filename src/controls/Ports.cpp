#include "controls/Ports.h"

#include "base/RuntimeError.h"

namespace plandesk {

namespace {

class NoPrinter : public Printer {
public:
    bool ready() override { return false; }
    void print(const Paper& /*paper*/) override { throw RuntimeError(ErrorNumber::PrinterError); }
    void writePdf(const Paper& /*paper*/, const std::filesystem::path& /*file*/) override {
        throw RuntimeError(ErrorNumber::PrinterError);
    }
};

}  // namespace

Printer& Printer::none() {
    static NoPrinter none;
    return none;
}

Progress& Progress::unheard() {
    static Progress nobody;
    return nobody;
}

}  // namespace plandesk

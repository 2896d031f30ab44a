#pragma once

#include <string>

#include "controls/Paper.h"
#include "controls/Ports.h"

namespace plandesk::desktop {

class PaperPages;

/// The bytes of a PDF file of the pages, with embedded fonts, and the title and the person of the paper in its
/// properties. The same paper gives the same bytes, but for the time of making.
/// Several threads may make files at once.
std::string pdfOf(const Paper& paper);
std::string pdfOf(const Paper& paper, const PaperPages& pages);

/// Papers as files alone: there is no printer.
class PdfFiles : public Printer {
public:
    explicit PdfFiles(Files& files) : files(files) {}

    bool ready() override { return false; }
    void print(const Paper& paper) override;
    void writePdf(const Paper& paper, const std::filesystem::path& file) override;

private:
    Files& files;
};

}  // namespace plandesk::desktop

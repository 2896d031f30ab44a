// Writes each report's layout as PDF and each page of it as a picture into a folder, to be looked at: with the names of
// the fields in their places, with nothing, or with 250 characters in each.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "desktop/PaperPages.h"
#include "desktop/PaperPdf.h"
#include "desktop/PaperText.h"
#include "reports/ReportCatalogue.h"

namespace {

using namespace plandesk;
using namespace plandesk::desktop;

std::string sample(const std::string& kind, std::string_view field) {
    if (kind == "empty")
        return "";
    if (kind == "names")
        return std::string(field);
    std::string text;
    constexpr std::size_t longest = 250;
    while (text.size() < longest)
        text += std::string(field) + (text.size() < longest / 2 ? " stands here with " : "");
    return text.substr(0, longest);
}

void fill(Paper& paper, const std::string& kind) {
    paper.date = {2026, 11, 22};
    paper.person = "A. Person";
    for (auto* part : {&paper.header, &paper.body, &paper.footer})
        for (PaperSection& section : *part)
            for (PaperRow& row : section.rows)
                for (PaperCell& cell : row.cells)
                    for (PaperItem& item : cell)
                        if (item.isField())
                            item.value = sample(kind, item.field);
}

QImage picture(const PaperPages& pages, int page) {
    constexpr int dotsPerInch = 100;
    constexpr qreal scale = static_cast<qreal>(dotsPerInch) / paperUnitsPerInch;
    QImage image((PaperPages::sheet() * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    pages.paint(painter, page);
    return image;
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::string kind = argc > 2 ? argv[2] : "names";
    if (argc < 2 || argc > 4 || (kind != "names" && kind != "empty" && kind != "long")) {
        std::cerr << "usage: plandesk-papers FOLDER [names|empty|long [REPORT]]\n";
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    for (Paper paper : reportLayouts()) {
        if (argc > 3 && paper.name != argv[3])
            continue;
        fill(paper, kind);
        const PaperPages pages(paper);
        const std::string name = std::string(paper.name) + "-" + kind;
        std::ofstream(folder / (name + ".pdf"), std::ios::binary) << pdfOf(paper, pages);
        for (int page = 0; page < pages.count(); ++page)
            picture(pages, page)
                .save(QString::fromStdString((folder / (name + "-" + std::to_string(page + 1) + ".png")).string()));
        std::cout << name << ": " << pages.count() << " sheets\n";
    }
    return 0;
}

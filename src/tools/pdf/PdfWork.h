#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "controls/Paper.h"
#include "desktop/PaperPdf.h"

namespace plandesk::tools {

/// Makes the PDF files of several papers at once, on as many cores as there are.
class PdfWork {
public:
    explicit PdfWork(std::vector<Paper> given) : papers(std::move(given)), files(papers.size()) {
        const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
        for (std::size_t worker = 0; worker < std::min(cores, papers.size()); ++worker)
            workers.emplace_back([this] { work(); });
    }

    /// The bytes of that paper's file; waits for them, and throws what kept them from being made. Once for each paper.
    std::string bytesOf(std::size_t paper) { return files.at(paper).get_future().get(); }

    ~PdfWork() { next = papers.size(); }  // what nobody waits for is not begun any more
    PdfWork(const PdfWork&) = delete;
    PdfWork& operator=(const PdfWork&) = delete;

private:
    void work() {
        for (std::size_t paper = next++; paper < papers.size(); paper = next++) {
            try {
                files[paper].set_value(desktop::pdfOf(papers[paper]));
            } catch (...) {
                files[paper].set_exception(std::current_exception());
            }
        }
    }

    std::vector<Paper> papers;
    std::vector<std::promise<std::string>> files;
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;  ///< the last member: they end before what they work on
};

}  // namespace plandesk::tools

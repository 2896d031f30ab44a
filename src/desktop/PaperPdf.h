#pragma once

#include <string>

#include "controls/Paper.h"

namespace plandesk::desktop {

class PaperPages;

/// The bytes of a PDF file of the pages, with embedded fonts, and the title and the person of the paper in its
/// properties. The same paper gives the same bytes, but for the time of making and what is drawn from it.
std::string pdfOf(const Paper& paper);
std::string pdfOf(const Paper& paper, const PaperPages& pages);

}  // namespace plandesk::desktop

// SPDX-License-Identifier: MIT
// The handlers of the print dialog.
#include "print/print_dialog.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/check.h"
#include "print/drawn_page.h"
#include "print/names.h"
#include "print/page_layout.h"
#include "print/texts.h"

namespace kestrel {

namespace {

// OptionAantal's indices and what they stand for.
constexpr std::array<int, 3> kPerPage = {1, 2, 4};

// The number in the box; only digits can be typed there, as many as one likes, so a number that is too large
// for any range stays just that.
int NumberTyped(std::string_view text) {
  constexpr int kEnough = 1000;
  int number = 0;
  for (const char c : text) {
    if (c >= '0' && c <= '9') number = std::min(10 * number + (c - '0'), kEnough);
  }
  return number;
}

// Holds a flag for as long as it lives.
class Busy {
 public:
  explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { flag_ = false; }

 private:
  bool& flag_;
};

}  // namespace

void PrintDialog::Load() {
  form_.window.left = (screen_.Width() - form_.window.width) / 2;
  form_.window.top = (screen_.Height() - form_.window.height) / 2;
  remembered_ = PrintSettings();
}

bool PrintDialog::Run(int selected_level, std::string_view program_folder) {
  remembered_.level_index = selected_level - 1;
  program_folder_ = program_folder;
  screen_.Show(FormId::Print);
  Activate();
  return screen_.WaitUntilHidden(FormId::Print);
}

// An event that no control of this form sends is a mistake of the program.
void PrintDialog::Handle(const Event& event) {
  if (printing_) return;
  const std::string_view name = event.control.name;
  switch (event.kind) {
    case EventKind::Close:
      Close();
      break;
    case EventKind::Click:
      Click(event.control);
      break;
    case EventKind::Change:
      Require(name == "PageSlider");
      ChoosePages();
      break;
    case EventKind::Key:
    case EventKind::Leave:
      Require(name == "TextFrom");
      if (event.key != Key::Escape) CheckRange();
      break;
    default:
      Require(false);
  }
  ShowFirstPage();
}

// Without a printer the dialog is hidden again when this returns.
void PrintDialog::Activate() {
  chosen_ = remembered_;
  form_.PageSlider.value = chosen_.pages;
  for (int option = 0; option < 3; ++option) {
    form_.OptionAantal(option).value = option == PerPageIndex(chosen_.per_page);
  }
  form_.CheckSolution.value = chosen_.with_solutions;
  form_.CheckPencils.value = chosen_.with_pencil_marks;
  form_.TextFrom.text = std::to_string(chosen_.first_number);
  form_.SudokuTypeKeuze.index = chosen_.level_index;
  form_.Label3.enabled = true;
  form_.TextFrom.enabled = true;
  form_.LabelTo.enabled = true;
  form_.LabelOutcome.caption.clear();
  ChoosePages();
  ShowPreview();
  form_.FirstPage.page.reset();  // the stock may be another one than last time
  if (SetUpPrinter()) return ShowFirstPage();
  // Whatever the answer, hiding is all that is left to do.
  (void)asker_.Message({std::string(texts::kPrinterErrorTitle), std::string(texts::kPrinterError),
                        MessageIcon::Exclamation, MessageButtons::Ok});
  screen_.Hide(FormId::Print);
}

bool PrintDialog::SetUpPrinter() {
  page_ = printer_.SetUp();
  // A printer that cannot tell the size of its paper is none.
  if (page_ == nullptr || page_->Width() <= 0 || page_->Height() <= 0) return false;
  metrics_ = MeasurePage(page_->Width(), page_->Height());
  return true;
}

void PrintDialog::Click(const ControlId& control) {
  if (control.name == "OptionAantal") {
    ChoosePerPage(control.index);
  } else if (control.name == "CheckSolution") {
    chosen_.with_solutions = form_.CheckSolution.value;
    ShowPreview();
  } else if (control.name == "CheckPencils") {
    chosen_.with_pencil_marks = form_.CheckPencils.value;
  } else if (control.name == "SudokuTypeKeuze") {
    ChooseLevel();
  } else if (control.name == "Command2") {
    Print();
  } else {
    Require(control.name == "Command1");
    Close();
  }
}

void PrintDialog::ChoosePerPage(int option) {
  chosen_.per_page = kPerPage[static_cast<std::size_t>(option)];
  ShowPreview();
  CheckRange();
}

void PrintDialog::ChoosePages() {
  chosen_.pages = std::clamp(form_.PageSlider.value, 1, kMostPages);
  form_.LabelPageCount.caption = std::to_string(chosen_.pages);
  CheckRange();
}

// With no level selected the one before stays.
void PrintDialog::ChooseLevel() {
  const int index = form_.SudokuTypeKeuze.index;
  if (index >= 0 && index < kLevels) chosen_.level_index = index;
}

// Corrects the first number so that the last one printed is the level's last at most, and shows that one.
void PrintDialog::CheckRange() {
  int number = NumberTyped(form_.TextFrom.text);
  const int highest = HighestFirstNumber(chosen_);
  if (number == 0 || number > highest) {
    number = number == 0 ? 1 : highest;
    form_.TextFrom.text = std::to_string(number);
  }
  chosen_.first_number = number;
  form_.LabelTo.caption = std::string(texts::kTo) + std::to_string(LastNumber(chosen_));
}

void PrintDialog::ShowPreview() {
  const auto& pictures = chosen_.with_solutions ? names::kPreviewsWithSolutions : names::kPreviews;
  const auto index = static_cast<std::size_t>(PerPageIndex(chosen_.per_page));
  form_.PrintVoorbeeld.file = std::string(program_folder_) + std::string(pictures[index]);
}

// Only what concerns the first page makes it be drawn again.
void PrintDialog::ShowFirstPage() {
  PrintSettings wanted = chosen_;
  wanted.pages = 1;
  if (page_ == nullptr || (form_.FirstPage.page && wanted == shown_)) return;
  shown_ = wanted;
  form_.FirstPage.page = DrawFirstPage(*page_, stock_, wanted);
}

void PrintDialog::Print() {
  CheckRange();
  remembered_ = chosen_;
  form_.LabelOutcome.caption.clear();
  if (page_ == nullptr) return;
  // Questions and progress of the printer let events in.
  const Busy busy(printing_);
  if (!printer_.BeginDocument(texts::DocumentTitle(chosen_))) return;
  // Stopped or not, what was begun is ended.
  (void)PageLayout(*page_, metrics_, stock_, chosen_).PrintPages();
  printer_.EndDocument();
  form_.LabelOutcome.caption = printer_.Outcome();
}

void PrintDialog::Close() {
  CheckRange();
  remembered_ = chosen_;
  screen_.Hide(FormId::Print);
}

}  // namespace kestrel

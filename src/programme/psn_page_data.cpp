#include "programme/psn_page_data.h"

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "link/link_error.h"
#include "link/serial_management.h"

namespace corvalis {

PsnPageData* psnPageData = nullptr;

namespace {

constexpr const char* kPlanSection = "PSN Plan";

std::string PlanKey(int row) { return "Plan" + Digits(row, 3); }

}  // namespace

PsnPageData::PsnPageData()
    : pages_size_({.section = kPsnSection,
                   .key = "MaxPsnPagesNum",
                   .fallback = 10,
                   .read_count = ReadPsnPageNumber,
                   .limit = kPageNumbers}),
      rows_size_({.section = kPsnSection,
                  .key = "MaxPsnNum",
                  .fallback = 50,
                  .read_count = ReadPsnNum,
                  .limit = kItemNumbers}),
      plans_size_({.section = kPlanSection,
                   .key = "MaxPsnPlanNum",
                   .fallback = 20,
                   .read_count = ReadPsnPlanNumber,
                   .limit = kItemNumbers}) {
  GetIni();
}

void PsnPageData::SetData(std::uint8_t page, std::int16_t row, const std::string& text) {
  At(page, row).data = Padded(text, kPsnCharacters);
}

void PsnPageData::SetRotationTime(std::uint8_t page, std::int16_t row, std::int16_t value) {
  At(page, row).rotation_time = static_cast<std::uint8_t>(value);
}

void PsnPageData::GetOneRds(std::uint8_t page, std::int16_t row) {
  PsnRow read = At(page, row);
  ReadPsnPage(page, static_cast<std::uint8_t>(row), read.rotation_time, read.data);
  if (LinkError != kLinkOk) return;
  read.active = read.rotation_time != 0;
  At(page, row) = read;
}

void PsnPageData::SetOneRds(std::uint8_t page, std::int16_t row) const {
  const std::uint8_t rotation =
      Active(page, row) ? RotationTime(current_page_, row) : std::uint8_t{0};
  SendPsnPage(page, static_cast<std::uint8_t>(row), rotation, Data(page, row));
}

void PsnPageData::GetOnePageActive() {
  std::int16_t page = 0;
  ReadPsnPageActive(page);
  if (LinkError != kLinkOk) return;
  // A digit that isn't one can be below 0.
  const int pages = MaxPsnPageNum();
  current_page_ = static_cast<std::uint8_t>((page % pages + pages) % pages);
}

void PsnPageData::GetOneRdsPlan(std::int16_t row) {
  PlanFields fields{};
  ReadPsnPlan(static_cast<std::uint8_t>(row), fields);
  if (LinkError == kLinkOk) Plan(row).SetFields(fields);
}

void PsnPageData::SetOneRdsPlan(std::int16_t row) const {
  SendPsnPlan(static_cast<std::uint8_t>(row), Plan(row).Fields());
}

void PsnPageData::GetIni() {
  pages_size_.Load(configData->PsnPagesEnable());
  plans_size_.Load(configData->PsnPlanEnable());
  rows_size_.Load();
  current_page_ = 0;
  scroll_.Load();
  pages_.assign(static_cast<std::size_t>(MaxPsnPageNum()), {});
  for (int page = 0; page < MaxPsnPageNum(); ++page) {
    std::vector<PsnRow>& rows = pages_[static_cast<std::size_t>(page)];
    for (int row = 0; row < MaxPsnNum(); ++row) rows.push_back(LoadPsnRow(page, row));
  }
  plans_.assign(static_cast<std::size_t>(MaxPsnPlanNum()), {});
  for (int row = 0; row < MaxPsnPlanNum(); ++row) {
    const std::string text = ReadIniKey(kPlanSection, PlanKey(row));
    if (!text.empty()) plans_[static_cast<std::size_t>(row)].SetFileValue(text);
  }
}

void PsnPageData::SetIni() const {
  pages_size_.Store();
  rows_size_.Store();
  plans_size_.Store();
  scroll_.Store();
  for (int page = 0; page < MaxPsnPageNum(); ++page) {
    for (int row = 0; row < MaxPsnNum(); ++row) {
      StorePsnRow(page, row, pages_[static_cast<std::size_t>(page)][static_cast<std::size_t>(row)]);
    }
  }
  for (int row = 0; row < MaxPsnPlanNum(); ++row) {
    WriteIniKey(kPlanSection, PlanKey(row), plans_[static_cast<std::size_t>(row)].FileValue());
  }
}

}  // namespace corvalis

#include "programme/active_psn.h"

#include "config/config_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"

namespace corvalis {

namespace {

bool Pages() { return configData->PsnPagesEnable(); }
std::uint8_t Page() { return psnPageData->CurrentPage(); }
std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

}  // namespace

std::int16_t ActivePsn::Rows() { return Pages() ? psnPageData->MaxPsnNum() : psnData->MaxPsnNum(); }

std::string ActivePsn::Data(int row) {
  return Pages() ? psnPageData->Data(Page(), Index(row)) : psnData->Data(Index(row));
}

void ActivePsn::SetData(int row, const std::string& text) {
  if (Pages()) {
    psnPageData->SetData(Page(), Index(row), text);
  } else {
    psnData->SetData(Index(row), text);
  }
}

std::uint8_t ActivePsn::RotationTime(int row) {
  return Pages() ? psnPageData->RotationTime(Page(), Index(row))
                 : psnData->RotationTime(Index(row));
}

void ActivePsn::SetRotationTime(int row, std::int16_t value) {
  if (Pages()) {
    psnPageData->SetRotationTime(Page(), Index(row), value);
  } else {
    psnData->SetRotationTime(Index(row), value);
  }
}

bool ActivePsn::Active(int row) {
  return Pages() ? psnPageData->Active(Page(), Index(row)) : psnData->Active(Index(row));
}

void ActivePsn::SetActive(int row, bool active) {
  if (Pages()) {
    psnPageData->SetActive(Page(), Index(row), active);
  } else {
    psnData->SetActive(Index(row), active);
  }
}

std::uint8_t ActivePsn::ScrollFrom() {
  return Pages() ? psnPageData->ScrollFrom() : psnData->ScrollFrom();
}

void ActivePsn::SetScrollFrom(std::uint8_t row) {
  Pages() ? psnPageData->SetScrollFrom(row) : psnData->SetScrollFrom(row);
}

std::uint8_t ActivePsn::ScrollTo() {
  return Pages() ? psnPageData->ScrollTo() : psnData->ScrollTo();
}

void ActivePsn::SetScrollTo(std::uint8_t row) {
  Pages() ? psnPageData->SetScrollTo(row) : psnData->SetScrollTo(row);
}

std::uint8_t ActivePsn::ScrollTime() {
  return Pages() ? psnPageData->ScrollTime() : psnData->ScrollTime();
}

void ActivePsn::SetScrollTime(std::uint8_t time) {
  Pages() ? psnPageData->SetScrollTime(time) : psnData->SetScrollTime(time);
}

void ActivePsn::GetOneRds(int row) {
  if (Pages()) {
    psnPageData->GetOneRds(Page(), Index(row));
  } else {
    psnData->GetOneRds(Index(row));
  }
}

void ActivePsn::SetOneRds(int row) {
  if (Pages()) {
    psnPageData->SetOneRds(Page(), Index(row));
  } else {
    psnData->SetOneRds(Index(row));
  }
}

}  // namespace corvalis

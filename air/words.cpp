#include "air/words.h"

#include "air/layout.h"

namespace corvalis::air {

namespace {

template <typename Way>
void Lay(Way& way, typename Way::template Of<std::uint16_t>& number) {
  way.Field(0, 16, number);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<BytePair>& pair) {
  way.Field(8, 8, pair[0]);
  way.Field(0, 8, pair[1]);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<ItemNumber>& item) {
  way.Field(11, 5, item.day);
  way.Field(6, 5, item.hour);
  way.Field(0, 6, item.minute);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<SlowLabel>& label) {
  way.Field(15, 1, label.la);
  way.Field(12, 3, label.variant);
  way.Field(0, 12, label.content);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<TrafficTable>& system) {
  way.Field(14, 2, system.variant);
  way.Field(6, 6, system.table);
  way.Field(5, 1, system.alternative_frequency);
  way.Field(4, 1, system.enhanced);
  way.Field(3, 1, system.international);
  way.Field(2, 1, system.national);
  way.Field(1, 1, system.regional);
  way.Field(0, 1, system.urban);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<TrafficService>& system) {
  way.Field(14, 2, system.variant);
  way.Field(12, 2, system.gap);
  way.Field(6, 6, system.service);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<Linkage>& linkage) {
  way.Field(15, 1, linkage.la);
  way.Field(14, 1, linkage.extended);
  way.Field(12, 1, linkage.international);
  way.Field(0, 12, linkage.number);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<TypeAndAnnouncement>& told) {
  way.Field(11, 5, told.pty);
  way.Field(0, 1, told.ta);
}

template <typename Way>
void Lay(Way& way, typename Way::template Of<SecondBlock>& second) {
  way.Field(12, 4, second.kind.number);
  way.Field(11, 1, second.kind.version_b);
  way.Field(10, 1, second.tp);
  way.Field(5, 5, second.pty);
  way.Field(0, kOwnBits, second.own);
}

}  // namespace

template <typename Word>
std::uint16_t WordOf(const Word& word) {
  Writer writer;
  Lay(writer, word);
  return writer.WordAt(0);
}

template <typename Word>
Word FromWord(std::uint16_t word) {
  Reader reader(word);
  Word fields{};
  Lay(reader, fields);
  return fields;
}

template std::uint16_t WordOf(const std::uint16_t& word);
template std::uint16_t WordOf(const BytePair& word);
template std::uint16_t WordOf(const ItemNumber& word);
template std::uint16_t WordOf(const SlowLabel& word);
template std::uint16_t WordOf(const TrafficTable& word);
template std::uint16_t WordOf(const TrafficService& word);
template std::uint16_t WordOf(const Linkage& word);
template std::uint16_t WordOf(const TypeAndAnnouncement& word);
template std::uint16_t WordOf(const SecondBlock& word);

template std::uint16_t FromWord(std::uint16_t word);
template BytePair FromWord(std::uint16_t word);
template ItemNumber FromWord(std::uint16_t word);
template SlowLabel FromWord(std::uint16_t word);
template TrafficTable FromWord(std::uint16_t word);
template TrafficService FromWord(std::uint16_t word);
template Linkage FromWord(std::uint16_t word);
template TypeAndAnnouncement FromWord(std::uint16_t word);
template SecondBlock FromWord(std::uint16_t word);

}  // namespace corvalis::air

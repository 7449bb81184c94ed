#include "support/heard_facts.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace corvalis::test {

namespace {

std::string Hex(unsigned value, std::size_t digits = 4) {
  std::ostringstream text;
  text << std::uppercase << std::hex << value;
  return std::string(digits - std::min(digits, text.str().size()), '0') + text.str();
}

// A line end is a "|".
template <typename Bytes>
std::string TextOf(const Bytes& bytes) {
  std::string text(bytes.begin(), bytes.end());
  std::replace(text.begin(), text.end(), '\n', '|');
  return text;
}
std::string TextOf(bool value) { return value ? "on" : "off"; }
std::string TextOf(int value) { return std::to_string(value); }
std::string TextOf(std::uint16_t value) { return Hex(value); }
std::string TextOf(const air::ItemNumber& item) { return Hex(air::WordOf(item)); }
std::string TextOf(const air::Linkage& linkage) { return Hex(air::WordOf(linkage)); }
std::string TextOf(const air::TrafficTable& table) { return Hex(air::WordOf(table)); }
std::string TextOf(const air::TrafficService& service) { return Hex(air::WordOf(service)); }
std::string TextOf(const air::ClockTime& time) { return TextOf(time.offset_half_hours); }
std::string TextOf(const air::HeardFrequency& frequency) {
  return std::to_string(frequency.Kilohertz());
}
std::string TextOf(const air::FrequencyPair& pair) {
  return TextOf(pair.own) + " = " + TextOf(pair.other);
}
std::string TextOf(const air::ChannelBytes& channel) {
  std::string text;
  for (int i = 0; i < channel.count; ++i) text += Hex(channel.bytes.at(i), 2);
  return text;
}
std::string TextOf(const air::Group8A& message) {
  std::ostringstream text;
  text << message.location << " event " << message.event << " extent " << message.extent
       << " direction " << message.direction << " duration " << message.duration << " diversion "
       << message.diversion;
  return text.str();
}

class Facts {
 public:
  template <typename Value>
  void One(const std::string& name, const air::Item<Value>& item) {
    if (item.IsHeard()) facts.insert(name + " " + TextOf(item.value));
  }
  template <typename List>
  void Each(const std::string& name, const List& list) {
    for (const auto& entry : list) {
      if (entry.IsHeard()) facts.insert(name + " " + TextOf(entry.value));
    }
  }

  std::set<std::string> facts;
};

void Network(const air::OtherNetwork& network, Facts& facts) {
  if (!network.IsHeard()) return;
  const std::string name = "EON " + Hex(network.pi);
  facts.One(name + " PS", network.name);
  facts.One(name + " TP", network.tp);
  facts.One(name + " TA", network.ta);
  facts.One(name + " PTY", network.pty);
  facts.One(name + " PIN", network.item);
  facts.One(name + " linkage", network.linkage);
  facts.Each(name + " AF", network.frequencies);
  facts.Each(name + " pair", network.pairs);
}

}  // namespace

std::set<std::string> HeardFacts(const air::Reception& heard) {
  Facts facts;
  facts.One("PI", heard.pi);
  facts.One("TP", heard.tp);
  facts.One("PTY", heard.pty);
  facts.One("TA", heard.ta);
  facts.One("music", heard.music);
  facts.One("stereo", heard.stereo);
  facts.One("artificial head", heard.artificial_head);
  facts.One("compressed", heard.compressed);
  facts.One("dynamic PTY", heard.dynamic_pty);
  facts.Each("PS", heard.ps.names);
  facts.Each("RT", heard.rt.texts);
  facts.One("PTYN", heard.type_name);
  facts.One("CT", heard.clock);
  facts.One("PIN", heard.item);
  facts.One("ECC", heard.country);
  facts.One("language", heard.language);
  facts.One("LA", heard.linked);
  facts.One("linkage", heard.linkage);
  facts.Each("AF", heard.frequencies.a);
  for (const auto& list : heard.frequencies.b) {
    if (!list.IsHeard()) continue;
    facts.Each("AF B " + TextOf(list.tuned) + " same", list.same);
    facts.Each("AF B " + TextOf(list.tuned) + " regional", list.regional);
  }
  for (const auto& network : heard.networks) Network(network, facts);
  for (std::size_t kind = 0; kind < heard.applications.size(); ++kind) {
    facts.One("AID " + air::GroupKind::OfIndex(static_cast<int>(kind)).Name(),
              heard.applications[kind].id);
  }
  facts.One("TMC table", heard.traffic.table);
  facts.One("TMC service", heard.traffic.service);
  facts.Each("TMC", heard.traffic.messages);
  for (std::size_t i = 0; i < heard.channels.size(); ++i) {
    facts.Each("channel " + std::to_string(i), heard.channels[i]);
  }
  for (std::size_t i = 0; i < heard.pages.size(); ++i) {
    facts.One("page " + std::to_string(i), heard.pages[i].text);
  }
  return std::move(facts.facts);
}

}  // namespace corvalis::test

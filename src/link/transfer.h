#pragma once

#include <functional>
#include <vector>

#include "screen/control.h"
#include "screen/window.h"

namespace corvalis {

/// What a button that talks to the Coder does, in one line: each of these is the whole road from
/// disabling `screen` to giving it the focus again. A failure has been reported when they return,
/// and stands in `LinkError`.

/// Reads from the Coder and shows what came.
void RunRead(Window& screen, const std::function<void()>& work);

/// Sends to the Coder. On a one-way link to a Coder that has not been addressed the operator is
/// warned, and nothing is sent.
void RunSend(Window& screen, const std::function<void()>& work);

/// Sends `passes` times, under the rule of `RunSend`. Ends at the first pass that leaves an error.
void RunBurst(Window& screen, int passes, const std::function<void()>& pass);

/// Sends a live control, as `work` says with `SendLive`. There is no address rule.
void RunLive(Window& screen, const std::function<void()>& work);

/// Within `RunLive`: `ConfigData::Burst` passes on a one-way link and one on any other, whatever a
/// pass leaves.
void SendLive(const std::function<void()>& pass);

/// The loop of every run of frames, to be called inside one of the roads above: clears `LinkError`,
/// does `item` for 0 to `count` - 1, with events handled and `pause` seconds waited after each, and
/// ends at the first that leaves an error. False if one did; it then stands in `LinkError`.
bool RunItems(int count, const std::function<void(int)>& item, float pause = 0);

/// The address rule, for a road that asks it at a moment of its own: true if something may be sent
/// now. On a one-way link to a Coder that has not been addressed it warns the operator and is
/// false.
[[nodiscard]] bool AddressRuleAllows();

/// The buttons of one kind of item. Reads are for a two-way link, bursts for a one-way one, sends
/// for both; none of them is shown for an item that the Coder model does not offer.
struct TransferButtons {
  std::vector<Control*> reads, sends, bursts;
};
void ShowTransferButtons(const TransferButtons& buttons, bool offered = true);

}  // namespace corvalis

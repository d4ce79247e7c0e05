#pragma once
// Sender: what the entry form asks of CW and voice.
//
// One object sends everything that goes out on the air: the stored messages
// of the function keys, the rows of the CW message table, text typed for
// CW, and the call with the exchange spoken from recorded pieces. It knows
// whether the band is CW or phone from the contest state it is built with,
// and picks the keyer (the built-in CW engine, the Winkeyer, the voice
// keyer) from the settings.
//
// Runs on the user-interface thread. A send may block and pump events; keys
// handled inside it must test SendingCW before they touch the speed, and Esc
// or Cancel end it through AbortFlag. A send that cannot reach its device
// tells the operator and returns; nothing in the log depends on it.

#include <cstdint>
#include <string>

namespace tarnix {

// The pieces Insert speaks on phone, as the four boxes beside the voice
// keyer's label are ticked, and how calls are spoken (DVKCallExchMode).
struct SpokenPieces {
  bool Call = false, Exchange = false, Greeting = false, Thanks = false;
  int16_t Mode = 0;
};

class Sender {
 public:
  virtual ~Sender() = default;

  // Stored message 1..9 (F1..F7, F11, F12) by CW or voice; dual for the
  // dual CQ of Shift.
  virtual void SendMessageKey(int message, bool dual) = 0;
  // Row 1..12 of the CW message table by itself (10 and 11: the exchange
  // messages of Insert; 12: the message for a dupe).
  virtual void SendMessageRow(int row) = 0;
  // A text as CW at once (F8, the keyboard CW box).
  virtual void SendCW(const std::string& text) = 0;
  // Insert on phone: the call and the exchange from recorded pieces.
  virtual void SendCallAndExchange(const std::string& call, const SpokenPieces& pieces) = 0;
  // The Winkeyer's speed source: 1 the PC, 2 its pot, 3 both.
  virtual void SetWinkeySpeedSource(int mode) = 0;
  // Closes the Winkeyer's port at exit.
  virtual void CloseWinkey() = 0;

  // What a send leaves for the key handlers and the entry loop.
  bool SendingCW = false;           // a message is going out: the speed keys leave it alone
  bool AbortFlag = false;           // Esc or Cancel during a send
  bool CallSendArmed = false;       // the message about to go out sends the call (Insert)
  bool LastMsgCallCorrect = false;  // the last CW message went through the call-correct path
};

}  // namespace tarnix

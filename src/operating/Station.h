#pragma once
// The station as the main form reaches it: the sender of CW and voice and
// the control of the two radios, given to the form the way the desktop is.

#include "keying/Sender.h"
#include "radio/RadioControl.h"

namespace tarnix {

struct Station {
  Sender& Keyer;
  RadioControl& Radios;
};

}  // namespace tarnix

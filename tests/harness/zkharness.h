// The Windows test harness: everything a GoogleTest program under Wine needs
// to drive real windows deterministically. Each piece has its own header.
#pragma once

#include "zkt_bitmap.h"
#include "zkt_debug_output.h"
#include "zkt_dialog.h"
#include "zkt_messages.h"
#include "zkt_null_control.h"
#include "zkt_pump.h"
#include "zkt_window.h"

// What the polar window asks: its input boxes, its file and colour dialogs and its messages, with their
// texts. Each asks through Dialogs, lets the model take the answer, and says whether something changed.
#pragma once

#include "platform/Dialogs.h"
#include "polar/PolarModel.h"

namespace veerwatch {

/// The filter of every dialog for polar files.
inline constexpr const char* kPolarFilter = "(*.pol)|*.pol";

bool AskRange(PolarModel& model, Dialogs& asks);
/// A new factor loads the own polar anew. One above 3 asks whether its hundredth was meant.
bool AskScaling(PolarModel& model, Dialogs& asks);
bool AskTargetBearing(PolarModel& model, Dialogs& asks);
bool AskMotorSpeed(PolarModel& model, Dialogs& asks);
bool AskColor(PolarModel& model, Dialogs& asks);

/// Opens a file into a slot and tells what was wrong with it. One that is a polar in another spelling it
/// offers to convert into a new file and to open that. True when a file was chosen.
bool AskOpen(PolarModel& model, int slot, Dialogs& asks);

/// Saves the own polar under a new name, with a question before an old file is replaced. After a scaled one
/// it says so and offers the factor 1, with which the polar is loaded anew.
bool PolarSaveAs(PolarModel& model, Dialogs& asks);

/// Loads a slot and tells what was wrong with it.
void PolarLoadAndTell(PolarModel& model, int slot, Dialogs& asks);

}  // namespace veerwatch

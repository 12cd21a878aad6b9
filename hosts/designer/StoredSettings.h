#pragma once

class QDesignerFormWindowInterface;

namespace zorvane {

/// Keeps the file of a form, as long as Qt Designer has it open, to those settings of its plates
/// that differ from a new widget's. Designer by itself stores whatever has once been touched.
void StoreOnlyWhatDiffers(QDesignerFormWindowInterface* form);

} // namespace zorvane

#pragma once

namespace corvana::benchmarks {

/// Measures whole programs, from exec until their first window is mapped and painted: the print
/// dialog on a sample printer with both panels, a program with nothing but the stock print dialog,
/// and one with an empty window. They take turns, so that what else runs on the machine slows all
/// of them down, and the ratio of the medians is printed.
///
/// False when a program shows no window or the print dialog takes longer than it should; true, with
/// a word about it, where there is no X server to measure with. To be called in a process of its
/// own, whose environment it changes.
bool measureWholeProcesses();

} // namespace corvana::benchmarks

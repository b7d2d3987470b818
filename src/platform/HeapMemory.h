#pragma once

namespace tromelo {

/// Each film comes with threads of its own. With a heap for each thread they would leave holes in
/// as many heaps as there may be, and the program would grow for dozens of films. Call it before
/// there are threads.
void shareHeaps();

/// What a film leaves free lies between what is still in use, and would stay with the program. It
/// goes back to the system within milliseconds, in which other threads may wait for memory: for
/// when nothing plays. Any thread.
void giveBackFreeMemory();

}  // namespace tromelo

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace modAllPurpose {

// What a piece of work leaves behind, to be done at its turn.
struct AtItsTurn {
  std::function<void()> Do;
  std::size_t Bytes = 0;  // that it holds until then, about
};

// Hands over a piece of what the work makes, while it goes on.
using PostPiece = std::function<void(std::string piece)>;

// Works that are counted from 0 and done by several threads, what they make in the order of their
// numbers.
struct OrderedWork {
  std::size_t Count = 0;
  int Threads = 1;
  // How many bytes may wait for their turn; what one work posts at a time may come on top.
  std::size_t MostWaiting = std::size_t{16} << 20U;

  // In one of the threads; in the caller's where the system gives no other. It ends with
  // WorkStopped, at the latest where it posts or next reads from a trial, once nobody waits for it
  // any more. Any other exception is thrown at its turn.
  std::function<AtItsTurn(std::size_t number, const PostPiece& post)> Work;

  // In the caller's thread, as all that follows: a piece of the work whose turn it is.
  std::function<void(std::string piece)> Take;
  // Several times a second while the caller waits, and behind each piece and each work.
  std::function<void()> Meanwhile = [] {};
  // Behind the last work, before the threads end.
  std::function<void()> Finish = [] {};
};

// Begins the works in their order, as many at once as there are threads, and hands over what each
// posts and leaves as if one came after the other. A work whose turn it is hands over as it goes;
// those behind it go on until MostWaiting, and only then wait. An exception ends all works.
void WorkInOrder(const OrderedWork& works);

// The number of threads that is meant by `jobs`: itself, or for 0 one a processor that this program
// may use.
int ThreadsFor(int jobs);

}  // namespace modAllPurpose

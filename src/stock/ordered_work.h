// SPDX-License-Identifier: MIT
// Work on many items by several threads, with the results in the order of the items. Used by the commands.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace kestrel {

// Runs `work` over all that `source` yields and hands each result to `sink`, in order, whatever the number
// of threads. Whoever finishes the result that is due writes it and those that waited behind it.
//
//   source(Item&) -> bool        the next item, false at the end; never called by two threads at once
//   make_worker() -> worker      once per thread; worker(Item&&) -> Result, called in parallel
//   sink(Result&&) -> bool       false ends the work; never called by two threads at once
//
// `jobs` (at least 1) counts the calling thread: with 1 no other is started. No more than eight results per
// thread wait for their turn, so memory stays bounded however slow a single item is.
template <class Item, class Source, class MakeWorker, class Sink>
void RunOrdered(int jobs, Source source, MakeWorker make_worker, Sink sink) {
  using Result = decltype(make_worker()(std::declval<Item&&>()));
  std::mutex mutex;  // guards all of the following, the source and the sink
  std::condition_variable turn;
  std::map<std::uint64_t, Result> waiting;
  std::uint64_t taken = 0;    // items handed out
  std::uint64_t written = 0;  // results handed to the sink
  bool drained = false;       // the source has no more
  bool stopped = false;       // the sink wants no more
  const std::uint64_t window = 8 * static_cast<std::uint64_t>(jobs);

  const auto run = [&] {
    auto worker = make_worker();
    std::unique_lock lock(mutex);
    while (true) {
      turn.wait(lock, [&] { return drained || stopped || taken - written < window; });
      Item item{};
      if (drained || stopped || !source(item)) break;
      const std::uint64_t number = taken++;
      lock.unlock();
      Result result = worker(std::move(item));
      lock.lock();
      waiting.emplace(number, std::move(result));
      while (!stopped && !waiting.empty() && waiting.begin()->first == written) {
        stopped = !sink(std::move(waiting.begin()->second));
        waiting.erase(waiting.begin());
        ++written;
      }
      turn.notify_all();
    }
    drained = true;
    turn.notify_all();
  };
  std::vector<std::jthread> threads;
  try {
    for (int k = 1; k < jobs; ++k) threads.emplace_back(run);
  } catch (const std::system_error&) {
    // The host has no more threads to give: those that run do all the work.
  }
  run();
}

}  // namespace kestrel

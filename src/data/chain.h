// The list of records that a file is read into, in the file's order.
#ifndef TAVIK_DATA_CHAIN_H
#define TAVIK_DATA_CHAIN_H

namespace tavik {

template <typename Record>
struct Chain {
  Record* head = nullptr;
  Record* tail = nullptr;

  void append(Record* record) {
    (tail == nullptr ? head : tail->next) = record;
    tail = record;
  }
};

}  // namespace tavik

#endif

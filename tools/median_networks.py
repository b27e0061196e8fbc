#!/usr/bin/env python3
"""Prints the compare-exchange tables of src/filtering/median_networks.hpp.

Each network starts as an odd-even merge sort of the next power of two. Inputs beyond the real
ones are taken as larger than every sample, so the exchanges that touch them only move them
along; the exchanges that cannot reach a wanted output are dropped, and one that reaches it by
only one of its two results becomes a half exchange (Lo keeps the smaller in a, Hi the larger in
b). Every table is checked here against sorting on random inputs with many equal values.
"""
import random


def merge_sort_network(n):
    pairs = []

    def merge(lo, hi, r):
        step = r * 2
        if step < hi - lo:
            merge(lo, hi, step)
            merge(lo + r, hi, step)
            pairs.extend((i, i + r) for i in range(lo + r, hi - r, step))
        else:
            pairs.append((lo, lo + r))

    def sort(lo, hi):
        if hi - lo >= 1:
            mid = lo + (hi - lo) // 2
            sort(lo, mid)
            sort(mid + 1, hi)
            merge(lo, hi, 1)

    sort(0, n - 1)
    return pairs


def on_values(pairs, inputs, width):
    """The exchanges of a network of `width` wires, inputs[k] on wire k (None: larger than all),
    as exchanges of value slots; returns them and the slot on each wire at the end."""
    slot = list(inputs) + [None] * (width - len(inputs))
    ops = []
    for a, b in pairs:
        va, vb = slot[a], slot[b]
        if vb is None:
            continue
        if va is None:
            slot[a], slot[b] = vb, None
            continue
        ops.append((va, vb))
    return ops, slot


def prune(ops, wanted):
    live, kept = set(wanted), []
    for a, b in reversed(ops):
        la, lb = a in live, b in live
        if la or lb:
            kept.append(('Ex' if la and lb else 'Lo' if la else 'Hi', a, b))
            live.update((a, b))
    return kept[::-1]


def run(ops, values):
    v = list(values)
    for kind, a, b in ops:
        lo, hi = min(v[a], v[b]), max(v[a], v[b])
        if kind != 'Hi':
            v[a] = lo
        if kind != 'Lo':
            v[b] = hi
    return v


def sorting(n):
    ops, slot = on_values(merge_sort_network(8 if n > 4 else 4), range(n), 8 if n > 4 else 4)
    assert slot[:n] == list(range(n))
    return ops


def median_of_25_sorted_columns():
    # Sorting the rows of five sorted columns keeps the columns sorted; of the 25 entries, 6 are
    # then known to lie below the middle and 6 above, and the middle of 25 is the middle of the
    # thirteen others.
    ops, rank = [], []
    for r in range(5):
        row = [c * 5 + r for c in range(5)]
        ops += [(row[a], row[b]) for a, b in sorting(5)]
        rank.append(row)
    cells = [(0, 3), (0, 4), (1, 2), (1, 3), (1, 4), (2, 1), (2, 2), (2, 3), (3, 0), (3, 1), (3, 2), (4, 0), (4, 1)]
    more, slot = on_values(merge_sort_network(16), [rank[i][j] for i, j in cells], 16)
    return prune(ops + more, [slot[6]]), slot[6]


def table(name, comment, ops):
    items = ['{%s, %d, %d}' % op for op in ops]
    lines, line = [], '   '
    for item in items:
        if len(line) + len(item) + 2 > 118:
            lines.append(line.rstrip())
            line = '   '
        line += ' ' + item + ','
    lines.append(line.rstrip(','))
    return '// %s\ninline constexpr CompareOp %s[] = {\n%s\n};' % (comment, name, '\n'.join(lines))


def main():
    rng = random.Random(1)
    med5 = prune(on_values(merge_sort_network(8), range(5), 8)[0], [2])
    sort5 = [('Ex', a, b) for a, b in sorting(5)]
    sort3 = [('Ex', a, b) for a, b in sorting(3)]
    sort8 = [('Ex', a, b) for a, b in on_values(merge_sort_network(8), range(8), 8)[0]]
    med25, where = median_of_25_sorted_columns()
    assert where == 12
    for _ in range(20000):
        x = [rng.randint(0, 5) for _ in range(25)]
        assert run(med5, x[:5])[2] == sorted(x[:5])[2]
        assert run(sort5, x[:5])[:5] == sorted(x[:5])
        assert run(sort3, x[:3])[:3] == sorted(x[:3])
        assert run(sort8, x[:8])[:8] == sorted(x[:8])
        cols = [sorted(x[5 * c:5 * c + 5]) for c in range(5)]
        assert run(med25, [v for col in cols for v in col])[12] == sorted(x)[12]
    print(table('kMedianOf5', 'The median of five, left in entry 2.', med5))
    print(table('kSortOf5', 'Five sorted in place, smallest first.', sort5))
    print(table('kSortOf3', 'Three sorted in place, smallest first.', sort3))
    print(table('kMedianOf25SortedColumns',
                'The median of 25 whose five columns of five (entries 5c to 5c + 4) are each sorted, left in entry 12.', med25))
    print(table('kSortOf8', 'Eight sorted in place, smallest first.', sort8))


if __name__ == '__main__':
    main()

# shellcheck shell=bash
# Tables on the terminal.

# Lines of cells with tabs between them become columns.
aligned() {
  awk -F '\t' '
    { for (i = 1; i <= NF; i++) { cell[NR, i] = $i; if (length($i) > width[i]) width[i] = length($i) } }
    END { for (row = 1; row <= NR; row++) {
            for (i = 1; i < NF; i++) printf "%-*s  ", width[i], cell[row, i]
            print cell[row, NF] } }'
}

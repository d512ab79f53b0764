# Reads what `ctest -V` printed and counts single test cases: prints "passed failed skipped"
# and, to the file named by `failures`, what the failed cases wrote.
#
# A GoogleTest case counts by its own lines; a case that began and never ended (a crash, a time
# limit) has failed. A program that failed without a failed case (a leak found at its end) counts
# as one failure. A program without cases, as a fuzz target, is one test.

{ sub(/\r$/, "") }

# "3: text" is a line of the third program.
/^[0-9]+: / {
  program = $1 + 0
  text = substr($0, length($1) + 2)
  if (text ~ /\[ RUN      \] /) {
    started[program]++
    output[program] = ""
  }
  output[program] = output[program] text "\n"
  if (text ~ /\[       OK \] .* \([0-9]+ ms\)$/) { passed[program]++; output[program] = "" }
  if (text ~ /\[  SKIPPED \] .* \([0-9]+ ms\)$/) { skipped[program]++; output[program] = "" }
  if (text ~ /\[  FAILED  \] .* \([0-9]+ ms\)$/) {
    printf "%s", output[program] > failures
    output[program] = ""
  }
  next
}

# "1/2 Test #3: name ....   Passed    0.52 sec"
/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: / {
  split($0, part, "#")
  program = part[2] + 0
  split(part[2], word, " ")
  name = word[2]
  good = $0 ~ /   Passed +[0-9.]+ sec$/
  # Left out as a whole, where the machine does not allow for it.
  if ($0 ~ /\*\*\*Skipped +[0-9.]+ sec$/) { totalSkipped++; next }
  alone = !(program in started)
  ok = passed[program] + 0
  bad = started[program] - ok - skipped[program]
  if (alone) { ok = good; bad = !good }
  if (!good && bad == 0) bad = 1
  if (!good) {
    printf "%s", output[program] > failures
    print name ": " $0 > failures
  }
  totalPassed += ok
  totalFailed += bad
  totalSkipped += skipped[program]
}

END { print totalPassed + 0, totalFailed + 0, totalSkipped + 0 }

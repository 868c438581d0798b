" Prints the current buffer with the syntax group of every run of characters, for each line as
"   N group:text|group:text
" White space at the ends of a run is left out, and what has no group is shown under "-".

function s:Group(line, column) abort
  let l:name = synIDattr(synID(a:line, a:column, 0), 'name')
  return empty(l:name) ? '-' : l:name
endfunction

function s:Runs(line) abort
  let l:text = getline(a:line)
  let l:runs = []
  let l:start = 1
  while l:start <= len(l:text)
    let l:end = l:start
    while l:end < len(l:text) && s:Group(a:line, l:end + 1) ==# s:Group(a:line, l:start)
      let l:end += 1
    endwhile
    let l:piece = trim(l:text[l:start - 1 : l:end - 1])
    if !empty(l:piece)
      call add(l:runs, s:Group(a:line, l:start) . ':' . l:piece)
    endif
    let l:start = l:end + 1
  endwhile
  return join(l:runs, '|')
endfunction

call writefile(map(range(1, line('$')), {_, n -> n . ' ' . s:Runs(n)}), $OUTPUT)

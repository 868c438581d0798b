" For 'formatexpr': puts the canonical layout in place of the whole text. What a line means depends on the
" lines before it, so a part of an input is left as it is, and so is a text that the program refuses.
function quill_inp#Format() abort
  if mode() =~# '[iR]'
    return 0
  endif
  if v:lnum != 1 || v:count < line('$')
    call s:Complain('only a whole input can be formatted: gggqG')
    return 0
  endif
  let l:lines = systemlist(&l:formatprg, getline(1, '$'))
  if v:shell_error
    call s:Complain(join(l:lines, ' '))
    return 0
  endif
  call s:Replace(l:lines)
  return 0
endfunction

" Lines that stay are not touched, so that marks and folds stay, too.
function s:Replace(lines) abort
  let l:view = winsaveview()
  for l:number in range(1, len(a:lines))
    if getline(l:number) !=# a:lines[l:number - 1] || l:number > line('$')
      call setline(l:number, a:lines[l:number - 1])
    endif
  endfor
  if line('$') > len(a:lines)
    silent execute (len(a:lines) + 1) . ',$delete _'
  endif
  call winrestview(l:view)
endfunction

function s:Complain(text) abort
  echohl ErrorMsg
  echomsg 'quill-inp: ' . substitute(a:text, '^quill-inp: ', '', '')
  echohl None
endfunction

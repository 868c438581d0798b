;;; quill-mode.el --- Editing QUILL inputs  -*- lexical-binding: t; -*-

;; Package-Requires: ((emacs "27.1"))
;; Keywords: languages

;;; Commentary:

;; Highlighting for QUILL inputs, the job descriptions of a computational-chemistry engine, and their
;; language server for eglot and lsp-mode.  In the init file:
;;
;;   (require 'quill-mode)
;;   (add-hook 'quill-mode-hook #'eglot-ensure)

;;; Code:

(defgroup quill nil
  "Editing QUILL inputs."
  :group 'languages)

(defcustom quill-server-command '("quill-inp" "lsp")
  "The language server: the program and its arguments."
  :type '(repeat string))

(defconst quill--integer "[-+]?[0-9]+")

(defconst quill--number
  (concat "[-+]?\\(?:\\(?:[0-9]+\\.?[0-9]*\\|\\.[0-9]+\\)\\(?:[eEdD][-+]?[0-9]+\\)?"
          "\\|[iI][nN][fF]\\(?:[iI][nN][iI][tT][yY]\\)?\\|[nN][aA][nN]\\)"))

(defconst quill--atom
  (concat "^[ \t]*\\([A-Za-z]+\\)\\(\\(?:[ \t]+" quill--number "\\)\\{3\\}\\)[ \t]*$")
  "A line with the form of an atom.")

(defconst quill--angle
  (concat "^[ \t]*\\([aA]\\)\\(\\(?:[ \t]+" quill--integer "\\)\\{3\\}\\)[ \t]*$")
  "A constraint of an angle, which has the form of an atom, too.")

(defconst quill--constraint
  (let ((numbers (lambda (count) (format "\\(?:[ \t]+%s\\)\\{%d\\}" quill--integer count))))
    (concat "^[ \t]*\\(?:\\([cC]\\)\\(" (funcall numbers 1) "\\)"
            "\\|\\([bB]\\)\\(" (funcall numbers 2) "\\)"
            "\\|\\([dD]\\)\\(" (funcall numbers 4) "\\)"
            "\\|\\([sS]\\)\\(\\(?:[ \t]+" quill--integer "\\)\\{2,4\\}[ \t]+" quill--number
            "[ \t]+" quill--integer "\\)\\)[ \t]*$"))
  "Constraints that cannot be atoms, and scans.")

(defun quill--follows-atoms-p ()
  "Whether the line before this one belongs to atoms, or comes before them.
Lines that may be an angle or an atom depend on the line before them."
  (save-excursion
    (catch 'known
      (while (zerop (forward-line -1))
        (cond ((looking-at-p "[ \t]*$"))
              ((looking-at-p quill--angle))
              (t (throw 'known (or (looking-at-p "[ \t]*#")
                                   (looking-at-p quill--atom)
                                   (looking-at-p (concat "[ \t]*" quill--integer "[ \t]+"
                                                         quill--integer "[ \t]*$")))))))
      t)))

(defun quill--match-angle (limit)
  "Find a constraint of an angle before LIMIT."
  (let (found)
    (while (and (not found) (re-search-forward quill--angle limit t))
      (let ((data (match-data)))
        (unless (save-excursion (goto-char (match-beginning 0)) (quill--follows-atoms-p))
          (setq found data))))
    (when found (set-match-data found) t)))

(defconst quill-font-lock-keywords
  `(("^[ \t]*\\(#\\)[ \t]*\\([^=(\n]*\\)\\(.*\\)$"
     (1 font-lock-preprocessor-face)
     (2 (if (member (downcase (string-trim (match-string 2))) '("sp" "opt" "ts" "freq" "irc" "scan"))
            font-lock-keyword-face
          font-lock-function-name-face))
     ;; The values, then the names that are left: no piece gets a second face.
     ("=[ \t]*\\(\"[^\"\n]*\"\\|'[^'\n]*'\\|[^,)\n]+\\)"
      (progn (goto-char (match-beginning 3)) (match-end 3)) nil
      (1 font-lock-string-face))
     ("[^(),= \t\n][^(),=\n]*"
      (progn (goto-char (match-beginning 3)) (match-end 3)) nil
      (0 font-lock-variable-name-face)))
    (,(concat "\\`\\(?:[ \t]*\\(?:#.*\\)?\n\\)*[ \t]*\\(" quill--integer "\\)[ \t]+\\("
              quill--integer "\\)[ \t]*$")
     (1 font-lock-constant-face) (2 font-lock-constant-face))
    (quill--match-angle (1 font-lock-keyword-face) (2 font-lock-constant-face))
    (,quill--constraint
     (1 font-lock-keyword-face nil t) (2 font-lock-constant-face nil t)
     (3 font-lock-keyword-face nil t) (4 font-lock-constant-face nil t)
     (5 font-lock-keyword-face nil t) (6 font-lock-constant-face nil t)
     (7 font-lock-keyword-face nil t) (8 font-lock-constant-face nil t))
    ("^[ \t]*\\([xX][yY][zZ]\\(?:[tT][rR][aA][jJ]\\)?\\|[pP][oO][sS][tT]\\)[ \t]+\\([^ \t\n].*?\\)[ \t]*$"
     (1 font-lock-keyword-face) (2 font-lock-string-face))
    (,quill--atom (1 font-lock-type-face) (2 font-lock-constant-face)))
  "Highlighting of a line by its form.")

;;;###autoload
(define-derived-mode quill-mode prog-mode "QUILL"
  "Major mode for QUILL inputs."
  (setq-local font-lock-defaults '(quill-font-lock-keywords t))
  ;; The format has no comments: nothing may be commented out.
  (setq-local comment-start nil)
  (setq-local require-final-newline t))

;;;###autoload
(add-to-list 'auto-mode-alist '("\\.qin\\'" . quill-mode))

(defvar eglot-server-programs)
(with-eval-after-load 'eglot
  (add-to-list 'eglot-server-programs (cons 'quill-mode quill-server-command)))

(declare-function lsp-register-client "lsp-mode")
(declare-function make-lsp-client "lsp-mode")
(declare-function lsp-stdio-connection "lsp-mode")
(declare-function lsp-activate-on "lsp-mode")
(defvar lsp-language-id-configuration)
(with-eval-after-load 'lsp-mode
  (add-to-list 'lsp-language-id-configuration '(quill-mode . "quill"))
  (lsp-register-client
   (make-lsp-client :new-connection (lsp-stdio-connection (lambda () quill-server-command))
                    :activation-fn (lsp-activate-on "quill")
                    :server-id 'quill-inp)))

(provide 'quill-mode)

;;; quill-mode.el ends here
